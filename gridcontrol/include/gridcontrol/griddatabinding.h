#pragma once

#include <gridcontrol/gridrow.h>

#include <QObject>
#include <QVariant>

namespace Qtitan {

class GridColumn;

/// What a column reads from the model.
class GridModelDataBinding : public QObject
{
    Q_OBJECT

public:
    explicit GridModelDataBinding(GridColumn *column);

    /// Column of the model.
    int columnIndex() const;

    /// Reads \a role of this column in \a row. False, with \a out invalid, for a row that the model does not
    /// have; the value itself may be invalid too.
    bool getValue(const GridRow &row, int role, QVariant &out) const;

    /// The same by the number of the row in the model.
    bool getValue(int modelRow, int role, QVariant &out) const;

    /// Role whose values order the rows when this column sorts. Default Qt::DisplayRole.
    int sortRole() const { return m_sortRole; }
    void setSortRole(int role);

signals:
    void sortRoleChanged();

private:
    GridColumn *m_column;
    int m_sortRole = Qt::DisplayRole;
};

} // namespace Qtitan
