#include "gridarea.h"

#include <gridcontrol/grid.h>

#include <QAccessible>

namespace Qtitan {

void GridArea::applySelectionPolicy()
{
    const int policy = options().selectionPolicy();
    setSelectionMode(policy == NoSelection          ? QAbstractItemView::NoSelection
                     : policy == SingleRowSelection ? SingleSelection
                                                    : ExtendedSelection);
    setSelectionBehavior(policy == CellSelection ? SelectItems : SelectRows);
    if (policy == Qtitan::NoSelection)
        clearSelection();
    viewport()->update();
}

QModelIndex GridArea::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int lines = m_rows->rowCount();
    const int last = columns().count() - 1;
    if (lines == 0 || last < 0)
        return QModelIndex();
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        return indexFor(0, 0);
    int line = current.row();
    int slot = qMax(0, columns().slotOfModelColumn(current.column()));
    const bool far = modifiers & Qt::ControlModifier;
    const int page = qMax(1, viewport()->height() / m_lineHeight - 1);
    switch (action) {
    case MoveUp:
        line = far ? 0 : line - 1;
        break;
    case MoveDown:
        line = far ? lines - 1 : line + 1;
        break;
    case MoveLeft:
        slot = far ? 0 : slot - 1;
        break;
    case MoveRight:
        slot = far ? last : slot + 1;
        break;
    case MovePageUp:
        line -= page;
        break;
    case MovePageDown:
        line += page;
        break;
    case MoveHome:
        far ? line = 0 : slot = 0;
        break;
    case MoveEnd:
        far ? line = lines - 1 : slot = last;
        break;
    case MoveNext:
        slot < last ? ++slot : (slot = 0, ++line);
        break;
    case MovePrevious:
        slot > 0 ? --slot : (slot = last, --line);
        break;
    }
    return indexFor(qBound(0, line, lines - 1), qBound(0, slot, last));
}

QItemSelection GridArea::rectangle(const QModelIndex &a, const QModelIndex &b) const
{
    const int top = qMin(a.row(), b.row());
    const int bottom = qMax(a.row(), b.row());
    QItemSelection selection;
    if (selectsRows()) {
        selection.select(m_rows->index(top, 0), m_rows->index(bottom, m_rows->columnCount() - 1));
        return selection;
    }
    const int slotOfA = columns().slotOfModelColumn(a.column());
    const int slotOfB = columns().slotOfModelColumn(b.column());
    for (int slot = qMax(0, qMin(slotOfA, slotOfB)); slot <= qMax(slotOfA, slotOfB);) {
        // Neighbours on the screen make one range as long as they are neighbours in the model.
        int end = slot;
        while (end < qMax(slotOfA, slotOfB) &&
               columns().at(end + 1).column->index() == columns().at(end).column->index() + 1)
            ++end;
        selection.append(QItemSelectionRange(indexFor(top, slot), indexFor(bottom, end)));
        slot = end + 1;
    }
    return selection;
}

void GridArea::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    const auto nearest = [this](const QPoint &point) {
        const int lines = m_rows->rowCount();
        const int wanted = (point.y() + verticalOffset()) / m_lineHeight;
        const int slot = columns().slotAt(qMax(0, point.x()), horizontalOffset());
        return indexFor(qBound(0, wanted, lines - 1), slot < 0 ? columns().count() - 1 : slot);
    };
    const QModelIndex end = nearest(rect.bottomRight());
    if (!end.isValid())
        return;
    QModelIndex start = m_anchor;
    if (!(command & QItemSelectionModel::Current) || !start.isValid())
        start = nearest(rect.topLeft());
    selectionModel()->select(rectangle(start, end), command);
}

QRegion GridArea::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region;
    const int first = firstVisibleLine();
    const int last = lastVisibleLine();
    for (const QItemSelectionRange &range : selection) {
        const int top = qMax(first, range.top());
        const int bottom = qMin(last, range.bottom());
        if (top >= 0 && top <= bottom)
            region += lineRect(top).united(lineRect(bottom)) & viewport()->rect();
    }
    return region;
}

QModelIndexList GridArea::selectedIndexes() const
{
    // The toolkit asks for these on a drag only, which the grid does not start.
    return QModelIndexList();
}

void GridArea::setCurrentCell(int line, int slot, QItemSelectionModel::SelectionFlags command)
{
    const QModelIndex index = indexFor(line, slot);
    m_anchor = index;
    if (!index.isValid()) {
        selectionModel()->clearCurrentIndex();
        return;
    }
    selectionModel()->setCurrentIndex(index, command | selectionBehaviorFlags());
}

QItemSelectionModel::SelectionFlags GridArea::selectionBehaviorFlags() const
{
    if (options().selectionPolicy() == Qtitan::NoSelection)
        return QItemSelectionModel::NoUpdate;
    return selectsRows() ? QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate;
}

void GridArea::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QAbstractItemView::currentChanged(current, previous);
    updateLine(previous.isValid() ? previous.row() : -1);
    updateLine(current.isValid() ? current.row() : -1);
    if (QAccessible::isActive() && current.isValid()) {
        const int slot = columns().slotOfModelColumn(current.column());
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild((1 + current.row()) * qMax(1, columns().count()) + qMax(0, slot));
        QAccessible::updateAccessibility(&event);
    }
    reportFocus();
}

void GridArea::reportFocus()
{
    const int row = currentIndex().isValid() ? m_rows->order().rowAt(currentIndex().row()) : -1;
    if (m_quietFocus || row < 0 || row == m_reportedRow)
        return;
    const int before = m_reportedRow;
    m_reportedRow = row;
    emit m_view->focusRowChanged(before, row);
}

void GridArea::focusInEvent(QFocusEvent *event)
{
    m_quietFocus = true;
    QAbstractItemView::focusInEvent(event);
    m_quietFocus = false;
}

} // namespace Qtitan
