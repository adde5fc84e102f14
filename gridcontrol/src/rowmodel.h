#pragma once

#include "roworder.h"
#include "rowsort.h"

#include <QAbstractProxyModel>
#include <QPersistentModelIndex>
#include <QTimer>

#include <functional>

namespace Qtitan {

/// The lines of the screen as a flat model: rows of the source below one root, sorted, filtered and grouped.
///
/// Columns are those of the source. A group row has the key as the display text of its first column and maps
/// to no index of the source. The source is never changed.
class RowModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    explicit RowModel(QObject *parent = nullptr);

    void setSource(QAbstractItemModel *source, const QModelIndex &root);
    QModelIndex sourceRoot() const { return m_root; }

    void setSortOrder(const SortOrder &order);
    const SortOrder &sortOrder() const { return m_sort; }

    /// Columns that group the rows, the outermost first.
    void setGroupColumns(const QVector<int> &columns);
    const QVector<int> &groupColumns() const { return m_groupColumns; }

    /// Shows only the rows for which \a accepts says so; an empty function shows all.
    void setRowFilter(const std::function<bool(int modelRow)> &accepts);

    const RowOrder &order() const { return m_order; }
    void setOpen(int line, bool open);
    void setAllOpen(bool open);
    void reveal(int modelRow);

    QModelIndex sourceIndex(int line, int column) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    QModelIndex sibling(int row, int column, const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QModelIndex mapToSource(const QModelIndex &index) const override;
    QModelIndex mapFromSource(const QModelIndex &index) const override;

signals:
    /// The source has, or may have, other columns.
    void sourceColumnsChanged();

private:
    using BeginRows = void (RowModel::*)(const QModelIndex &parent, int first, int last);
    using EndRows = void (RowModel::*)();

    void connectSource();
    void forgetSource();
    /// Makes the lines anew when the source changes otherwise.
    template <typename Before, typename After> void resetAround(Before before, After after);
    /// Follows rows that come, or rows that go.
    template <typename Before, typename After>
    void connectRows(Before before, After after, BeginRows begin, EndRows end);
    void resetFromSource();
    void rebuild();
    GroupLevel groupLevel(int column, const std::vector<int> &ordered) const;
    void reorder(const std::function<void()> &change);
    void sourceDataChanged(const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles);
    bool isArranged() const;

    QPersistentModelIndex m_root;
    RowOrder m_order;
    SortOrder m_sort;
    QVector<int> m_groupColumns;
    std::function<bool(int)> m_filter;
    QTimer m_rearrange;
    int m_columns = 0;
    bool m_hasRoot = false;
};

} // namespace Qtitan
