#include "gridaccessiblecells.h"

#include "gridaccessible.h"
#include "gridarea.h"
#include "gridheader.h"

#include <gridcontrol/grid.h>

#include <algorithm>

namespace Qtitan {

namespace {
QRect onScreen(const QWidget *widget, const QRect &rect)
{
    return QRect(widget->mapToGlobal(rect.topLeft()), rect.size());
}
} // namespace

AccessiblePart::AccessiblePart(GridArea *area)
    : m_area(area)
{}

AccessiblePart::~AccessiblePart() = default;

QAccessibleInterface *AccessiblePart::parent() const
{
    return QAccessible::queryAccessibleInterface(m_area);
}

AccessibleCell::AccessibleCell(GridArea *area, int line, int slot)
    : AccessiblePart(area)
    , m_line(line)
    , m_slot(slot)
{}

void *AccessibleCell::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface *>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

bool AccessibleCell::isValid() const
{
    return m_area && m_line < m_area->rows().rowCount() && m_slot < m_area->columns().count();
}

QAccessible::Role AccessibleCell::role() const
{
    return isValid() && !m_area->isGroupLine(m_line) && m_area->columns().at(m_slot).column->isLink()
               ? QAccessible::Link
               : QAccessible::Cell;
}

QAccessible::State AccessibleCell::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const QModelIndex current = m_area->currentIndex();
    state.focusable = true;
    state.selectable = true;
    state.readOnly = true;
    state.selected = isSelected();
    state.focused = m_area->hasFocus() && current.row() == m_line &&
                    m_area->columns().slotOfModelColumn(current.column()) == m_slot;
    state.invisible = !m_area->viewport()->rect().intersects(m_area->cellRect(m_line, m_slot));
    if (const RowGroup *group = m_area->rows().order().groupAt(m_line)) {
        state.expandable = true;
        state.expanded = group->open;
        state.collapsed = !group->open;
    }
    return state;
}

QRect AccessibleCell::rect() const
{
    return isValid() ? onScreen(m_area->viewport(), m_area->cellRect(m_line, m_slot)) : QRect();
}

QString AccessibleCell::text(QAccessible::Text kind) const
{
    if (!isValid())
        return QString();
    const RowGroup *group = m_area->rows().order().groupAt(m_line);
    if (kind == QAccessible::Description) {
        const GridColumn *column =
            group ? m_area->view()->getColumn(m_area->rows().groupColumns().at(group->level))
                  : m_area->columns().at(m_slot).column;
        return m_area->view()->headerPath(column).join(QStringLiteral(" / "));
    }
    if (kind != QAccessible::Name && kind != QAccessible::Value)
        return QString();
    const QString text = m_area->textOf(m_line, m_slot);
    return group && m_slot == 0 ? QStringLiteral("%1 (%2)").arg(text, QString::number(group->count())) : text;
}

bool AccessibleCell::isSelected() const
{
    return isValid() && m_area->selectionModel()->isSelected(
                            m_area->rows().index(m_line, m_area->columns().at(m_slot).column->index()));
}

QList<QAccessibleInterface *> AccessibleCell::columnHeaderCells() const
{
    return isValid() ? static_cast<AccessibleGrid *>(parent())->headerCells(m_slot)
                     : QList<QAccessibleInterface *>();
}

QStringList AccessibleCell::actionNames() const
{
    return isValid() && (m_area->isGroupLine(m_line) || role() == QAccessible::Link ||
                         m_area->columns().at(m_slot).column->buttonCount())
               ? QStringList{QAccessibleActionInterface::pressAction(),
                             QAccessibleActionInterface::setFocusAction()}
               : QStringList{QAccessibleActionInterface::setFocusAction()};
}

void AccessibleCell::doAction(const QString &action)
{
    if (!isValid())
        return;
    if (action == QAccessibleActionInterface::setFocusAction())
        m_area->setCurrentCell(m_line, m_slot, QItemSelectionModel::ClearAndSelect);
    else if (action == QAccessibleActionInterface::pressAction())
        m_area->isGroupLine(m_line) ? m_area->toggleGroup(m_line)
                                    : void(m_area->activateCell(m_line, m_slot, 0));
}

AccessibleCaption::AccessibleCaption(GridArea *area, GridColumnBase *item, int firstSlot)
    : AccessiblePart(area)
    , m_item(item)
    , m_firstSlot(firstSlot)
{}

QAccessible::State AccessibleCaption::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    return state;
}

QRect AccessibleCaption::rect() const
{
    if (!isValid())
        return QRect();
    const QVector<HeaderCell> &cells = m_area->captions().cells();
    const auto cell = std::find_if(cells.begin(), cells.end(), [this](const HeaderCell &candidate) {
        return candidate.item == m_item && candidate.firstSlot == m_firstSlot;
    });
    return cell == cells.end() ? QRect() : onScreen(m_area->header(), m_area->header()->cellRect(*cell));
}

QString AccessibleCaption::text(QAccessible::Text kind) const
{
    if (!isValid())
        return QString();
    if (kind == QAccessible::Name)
        return m_item->caption();
    const GridViewBase *view = m_area->view();
    if (kind != QAccessible::Description || !column() || column() != view->sortColumn())
        return QString();
    return view->sortState() == SortUp ? GridBase::tr("升序") : GridBase::tr("降序");
}

GridColumn *AccessibleCaption::column() const
{
    return qobject_cast<GridColumn *>(m_item);
}

void *AccessibleCaption::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

QStringList AccessibleCaption::actionNames() const
{
    return column() && column()->isSortEnabled() ? QStringList{QAccessibleActionInterface::pressAction()}
                                                 : QStringList();
}

void AccessibleCaption::doAction(const QString &action)
{
    if (isValid() && column() && action == QAccessibleActionInterface::pressAction())
        GridHeader::sortNext(column());
}

} // namespace Qtitan
