// How drags on the header become widths and orders, and clicks become sorts.

#include "gridarea.h"
#include "gridheader.h"

#include <gridcontrol/grid.h>

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>

#include <numeric>

namespace Qtitan {

void GridHeader::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    startDrag(event->pos());
}

void GridHeader::startDrag(const QPoint &point)
{
    cancelDrag();
    m_pressedAt = point;
    m_dragged = edgeAt(point);
    if (m_dragged)
        return startResize();
    m_drag = Pressed;
    const int number = cellAt(point);
    if (number < 0)
        return;
    const HeaderCell &cell = m_area->captions().cells().at(number);
    m_dragged = cell.item;
    for (int slot = cell.firstSlot; slot <= cell.lastSlot; ++slot)
        m_draggedColumns.append(m_area->columns().at(slot).column);
}

void GridHeader::startResize()
{
    m_drag = Resizing;
    if (const auto *band = qobject_cast<GridTableBand *>(m_dragged))
        m_draggedColumns = band->columns();
    else
        m_draggedColumns = {qobject_cast<GridColumn *>(m_dragged)};
    for (const GridColumn *column : qAsConst(m_draggedColumns))
        m_startWidths.append(column->width());
}

void GridHeader::cancelDrag()
{
    m_drag = NoDrag;
    m_dragged = nullptr;
    m_draggedColumns.clear();
    m_startWidths.clear();
    m_dropX = -1;
    m_dropAllowed = false;
}

void GridHeader::mouseMoveEvent(QMouseEvent *event)
{
    switch (m_drag) {
    case NoDrag:
        setCursor(edgeAt(event->pos()) ? Qt::SplitHCursor : Qt::ArrowCursor);
        break;
    case Resizing:
        shareWidth(
            m_draggedColumns, m_startWidths,
            std::accumulate(m_startWidths.begin(), m_startWidths.end(), event->pos().x() - m_pressedAt.x()));
        break;
    case Pressed:
        if (m_dragged && (event->pos() - m_pressedAt).manhattanLength() >= QApplication::startDragDistance())
            m_drag = Moving;
        break;
    case Moving:
        updateDropPlace(event->pos());
        break;
    }
}

// Beside the caption under the pointer, or else beside the innermost of its bands where the dragged ones may
// stand.
void GridHeader::updateDropPlace(const QPoint &point)
{
    const ColumnLayout &columns = m_area->columns();
    // Towards what is scrolled away.
    QScrollBar *bar = m_area->horizontalScrollBar();
    if (point.x() >= width() - edgeReach)
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    else if (point.x() < columns.fixedWidth() && !isFixed(m_draggedColumns.first()))
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    int slot = columns.slotAt(qMax(0, point.x()), m_area->horizontalScrollBar()->value());
    if (slot < 0)
        slot = columns.count() - 1;
    const QVector<HeaderCell> &cells = m_area->captions().cells();
    m_dropAllowed = false;
    for (auto cell = cells.crbegin(); !m_dropAllowed && cell != cells.crend(); ++cell) {
        if (slot < cell->firstSlot || cell->lastSlot < slot)
            continue;
        const QRect rect = cellRect(*cell);
        const bool behind = point.x() > rect.center().x();
        const int before = behind ? cell->lastSlot + 1 : cell->firstSlot;
        m_dropX = behind ? rect.right() + 1 : rect.left();
        m_dropBefore = before < columns.count() ? columns.at(before).column : nullptr;
        m_dropAllowed = m_area->view()->canMoveColumns(m_draggedColumns, m_dropBefore);
    }
    setCursor(m_dropAllowed ? Qt::ClosedHandCursor : Qt::ForbiddenCursor);
    update();
}

void GridHeader::finishMove()
{
    const QVector<GridColumn *> moved = m_draggedColumns;
    if (m_dropAllowed)
        m_area->view()->moveColumns(moved, m_dropBefore);
    setCursor(Qt::ArrowCursor);
    update();
}

void GridHeader::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    GridColumn *column = qobject_cast<GridColumn *>(m_dragged);
    const bool clicked = m_drag == Pressed && column && columnAt(event->pos()) == column;
    if (m_drag == Moving)
        finishMove();
    cancelDrag();
    if (clicked)
        sortNext(column);
}

} // namespace Qtitan
