#include "tfgridaccess.h"

#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfsujecttableview.h"

#include <gridcontrol/grid.h>

TFGridAccess::TFGridAccess(TFSujectTableView *table)
    : m_table(table)
    , m_view(table && table->model() ? table->grid()->rootView() : nullptr)
    , m_rows(m_view ? m_view->visibleRows() : QVector<int>())
{}

TFSubjectTableModel *TFGridAccess::model() const
{
    return m_view ? m_table->model() : nullptr;
}

QVector<TFGridAccess::Column> TFGridAccess::columns() const
{
    QVector<Column> columns;
    const QVector<Qtitan::GridColumn *> shown =
        m_view ? m_view->shownColumns() : QVector<Qtitan::GridColumn *>();
    for (int i = 0; m_view && i < m_view->getColumnCount(); ++i) {
        const Qtitan::GridColumn *column = m_view->getColumn(i);
        bool isFrozen = false;
        for (const Qtitan::GridColumnBase *item = column; item; item = item->parentBand())
            isFrozen = isFrozen || item->fixedKind() == Qtitan::FixedLeft;
        columns.append({column->caption(), column->width(), column->cellAlignment(),
                        shown.contains(const_cast<Qtitan::GridColumn *>(column)), isFrozen, column->isLink(),
                        column->buttonCount() > 0});
    }
    return columns;
}

QVector<Qtitan::GridGroup> TFGridAccess::groups() const
{
    return m_view ? m_view->groups() : QVector<Qtitan::GridGroup>();
}

bool TFGridAccess::hasRow(int row, QString *reason) const
{
    if (row >= 0 && row < m_rows.size())
        return true;
    *reason = m_rows.isEmpty() ? QStringLiteral("the table has no rows")
                               : QStringLiteral("there is no row %1, the table has rows 0 to %2")
                                     .arg(row)
                                     .arg(m_rows.size() - 1);
    return false;
}

Qtitan::GridColumn *TFGridAccess::shownColumn(int column, QString *reason) const
{
    Qtitan::GridColumn *found = m_view ? m_view->getColumn(column) : nullptr;
    if (!found)
        *reason = QStringLiteral("there is no column %1").arg(column);
    else if (!m_view->shownColumns().contains(found))
        *reason = QStringLiteral("column %1 is not shown").arg(column);
    else
        return found;
    return nullptr;
}

bool TFGridAccess::selectRow(int row, QString *reason)
{
    if (!hasRow(row, reason))
        return false;
    m_view->setFocusRow(m_rows.at(row));
    return true;
}

bool TFGridAccess::followLink(int row, int column, QString *reason)
{
    const Qtitan::GridColumn *found = hasRow(row, reason) ? shownColumn(column, reason) : nullptr;
    if (!found)
        return false;
    if (m_view->followLink(m_rows.at(row), found))
        return true;
    *reason = QStringLiteral("the cell in row %1, column %2 is no link").arg(row).arg(column);
    return false;
}

bool TFGridAccess::sort(int column, QString *reason)
{
    Qtitan::GridColumn *found = shownColumn(column, reason);
    if (!found)
        return false;
    if (!found->isSortEnabled()) {
        *reason = QStringLiteral("column %1 can't be sorted").arg(column);
        return false;
    }
    const int state = m_view->sortColumn() == found ? m_view->sortState() : int(Qtitan::AsDelivered);
    m_view->sortByColumn(found, (state + 1) % 3);
    return true;
}
