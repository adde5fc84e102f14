#pragma once

#include <QAbstractItemModel>
#include <QModelIndex>
#include <QPointer>

namespace Qtitan {

/// One cell of the model; good until the model changes.
class GridCell
{
public:
    GridCell() = default;
    explicit GridCell(const QModelIndex &index)
        : m_index(index)
    {}

    bool isValid() const { return m_index.isValid(); }

    /// Index in the model that was given to the view, whatever the order of rows and columns on the screen.
    QModelIndex modelIndex() const { return m_index; }

private:
    QModelIndex m_index;
};

/// One row of the model, group rows excluded; a value, good until the model changes.
class GridRow
{
public:
    GridRow() = default;
    GridRow(const QAbstractItemModel *model, const QModelIndex &root, int row)
        : m_model(model)
        , m_root(root)
        , m_row(row)
    {}

    bool isValid() const { return m_model && m_row >= 0 && m_row < m_model->rowCount(m_root); }

    /// Number of the row in the model; -1 for none.
    int rowIndex() const { return m_row; }

    /// Cell of model column \a column; an invalid one if there is no such column.
    GridCell cell(int column) const
    {
        return m_model ? GridCell(m_model->index(m_row, column, m_root)) : GridCell();
    }

private:
    QPointer<const QAbstractItemModel> m_model;
    QPersistentModelIndex m_root;
    int m_row = -1;
};

} // namespace Qtitan
