#include "gridaccessible.h"

#include "gridaccessiblecells.h"
#include "gridarea.h"

#include <gridcontrol/gridview.h>

namespace Qtitan {

namespace {
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    auto *area = className == QLatin1String("Qtitan::GridArea") ? qobject_cast<GridArea *>(object) : nullptr;
    return area ? new AccessibleGrid(area) : nullptr;
}
} // namespace

void installGridAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed)
}

AccessibleGrid::AccessibleGrid(GridArea *area)
    : QAccessibleWidget(area, QAccessible::Table)
{}

AccessibleGrid::~AccessibleGrid()
{
    forgetChildren();
}

GridArea *AccessibleGrid::area() const
{
    return static_cast<GridArea *>(object());
}

void *AccessibleGrid::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

void AccessibleGrid::forgetChildren()
{
    for (QAccessible::Id id : qAsConst(m_cells))
        QAccessible::deleteAccessibleInterface(id);
    for (QAccessible::Id id : qAsConst(m_captions))
        QAccessible::deleteAccessibleInterface(id);
    m_cells.clear();
    m_captions.clear();
}

void AccessibleGrid::modelChange(QAccessibleTableModelChangeEvent *)
{
    forgetChildren();
}

int AccessibleGrid::columnCount() const
{
    return area()->columns().count();
}

int AccessibleGrid::rowCount() const
{
    return area()->rows().rowCount();
}

int AccessibleGrid::childCount() const
{
    return (rowCount() + 1) * columnCount();
}

QAccessibleInterface *AccessibleGrid::child(int index) const
{
    const int columns = columnCount();
    if (index < 0 || index >= childCount())
        return nullptr;
    return index < columns ? headerCells(index).last() : cellAt(index / columns - 1, index % columns);
}

QAccessibleInterface *AccessibleGrid::cellAt(int row, int column) const
{
    if (row < 0 || column < 0 || row >= rowCount() || column >= columnCount())
        return nullptr;
    const QPair<int, int> place(row, column);
    if (!m_cells.contains(place))
        m_cells.insert(place,
                       QAccessible::registerAccessibleInterface(new AccessibleCell(area(), row, column)));
    return QAccessible::accessibleInterface(m_cells.value(place));
}

QList<QAccessibleInterface *> AccessibleGrid::headerCells(int column) const
{
    QList<QAccessibleInterface *> path;
    for (const HeaderCell &cell : area()->captions().cells()) {
        if (column < cell.firstSlot || column > cell.lastSlot)
            continue;
        const QPair<GridColumnBase *, int> key(cell.item, cell.firstSlot);
        if (!m_captions.contains(key))
            m_captions.insert(key, QAccessible::registerAccessibleInterface(
                                       new AccessibleCaption(area(), cell.item, cell.firstSlot)));
        path.append(QAccessible::accessibleInterface(m_captions.value(key)));
    }
    return path;
}

QAccessibleInterface *AccessibleGrid::childAt(int x, int y) const
{
    const QModelIndex index = area()->indexAt(area()->viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? cellAt(index.row(), area()->columns().slotOfModelColumn(index.column()))
                           : nullptr;
}

QAccessibleInterface *AccessibleGrid::focusChild() const
{
    const QModelIndex current = area()->currentIndex();
    return current.isValid() ? cellAt(current.row(), area()->columns().slotOfModelColumn(current.column()))
                             : nullptr;
}

int AccessibleGrid::indexOfChild(const QAccessibleInterface *child) const
{
    if (const auto *cell = dynamic_cast<const AccessibleCell *>(child))
        return (cell->line() + 1) * columnCount() + cell->slot();
    if (const auto *caption = dynamic_cast<const AccessibleCaption *>(child))
        return caption->column() ? caption->firstSlot() : -1;
    return -1;
}

QString AccessibleGrid::columnDescription(int column) const
{
    if (column < 0 || column >= columnCount())
        return QString();
    return area()->view()->headerPath(area()->columns().at(column).column).join(QStringLiteral(" / "));
}

int AccessibleGrid::selectedCellCount() const
{
    int count = 0;
    for (const QItemSelectionRange &range : area()->selectionModel()->selection())
        for (int slot = 0; slot < columnCount(); ++slot) {
            const int column = area()->columns().at(slot).column->index();
            count += range.left() <= column && column <= range.right() ? range.height() : 0;
        }
    return count;
}

QList<QAccessibleInterface *> AccessibleGrid::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    for (const QItemSelectionRange &range : area()->selectionModel()->selection())
        for (int line = range.top(); line <= range.bottom(); ++line)
            for (int column = range.left(); column <= range.right(); ++column)
                if (QAccessibleInterface *cell = cellAt(line, area()->columns().slotOfModelColumn(column)))
                    cells.append(cell);
    return cells;
}

QList<int> AccessibleGrid::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex &index : area()->selectionModel()->selectedRows())
        rows.append(index.row());
    return rows;
}

QList<int> AccessibleGrid::selectedColumns() const
{
    QList<int> columns;
    for (int slot = 0; slot < columnCount(); ++slot)
        if (isColumnSelected(slot))
            columns.append(slot);
    return columns;
}

int AccessibleGrid::selectedColumnCount() const
{
    return selectedColumns().size();
}

int AccessibleGrid::selectedRowCount() const
{
    return selectedRows().size();
}

bool AccessibleGrid::isColumnSelected(int column) const
{
    return column >= 0 && column < columnCount() && rowCount() > 0 &&
           area()->selectionModel()->isColumnSelected(area()->columns().at(column).column->index(),
                                                      QModelIndex());
}

bool AccessibleGrid::isRowSelected(int row) const
{
    return row >= 0 && row < rowCount() && area()->selectionModel()->isRowSelected(row, QModelIndex());
}

bool AccessibleGrid::change(int firstRow, int lastRow, int firstColumn, int lastColumn, bool select)
{
    const QAbstractItemModel &model = area()->rows();
    const QModelIndex first = model.index(firstRow, firstColumn);
    const QModelIndex last = model.index(lastRow, lastColumn);
    const bool none = area()->selectionMode() == QAbstractItemView::NoSelection;
    const bool single = area()->selectionMode() == QAbstractItemView::SingleSelection;
    if (none || !first.isValid() || !last.isValid() || (single && firstRow != lastRow))
        return false;
    const auto flag = !select  ? QItemSelectionModel::Deselect
                      : single ? QItemSelectionModel::ClearAndSelect
                               : QItemSelectionModel::Select;
    area()->selectionModel()->select(QItemSelection(first, last), flag);
    return true;
}

bool AccessibleGrid::selectRow(int row)
{
    return change(row, row, 0, area()->rows().columnCount() - 1, true);
}

bool AccessibleGrid::unselectRow(int row)
{
    return change(row, row, 0, area()->rows().columnCount() - 1, false);
}

bool AccessibleGrid::selectColumn(int column)
{
    if (area()->selectsRows() || column < 0 || column >= columnCount())
        return false;
    const int own = area()->columns().at(column).column->index();
    return change(0, rowCount() - 1, own, own, true);
}

bool AccessibleGrid::unselectColumn(int column)
{
    if (area()->selectsRows() || column < 0 || column >= columnCount())
        return false;
    const int own = area()->columns().at(column).column->index();
    return change(0, rowCount() - 1, own, own, false);
}

} // namespace Qtitan
