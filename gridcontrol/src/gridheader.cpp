#include "gridheader.h"

#include "gridarea.h"
#include "gridmenu.h"

#include <gridcontrol/grid.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>

#include <numeric>

namespace Qtitan {

namespace {
constexpr int edgeReach = 4;

GridColumn *asColumn(GridColumnBase *item)
{
    return qobject_cast<GridColumn *>(item);
}
} // namespace

GridHeader::GridHeader(GridArea *area)
    : QWidget(area)
    , m_area(area)
{
    setObjectName(QStringLiteral("gridHeader"));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

int GridHeader::stripHeight() const
{
    return m_area->options().groupsHeader() ? m_area->levelHeight() : 0;
}

int GridHeader::wantedHeight() const
{
    return stripHeight() + m_area->captions().depth() * m_area->levelHeight();
}

QFont GridHeader::captionFont() const
{
    const GridViewOptions &options = m_area->options();
    return m_area->zoomed(options.hasColumnFont() ? options.columnFont() : m_area->view()->grid()->font());
}

QRect GridHeader::cellRect(const HeaderCell &cell) const
{
    return m_area->captions()
        .rect(cell, m_area->columns(), m_area->horizontalScrollBar()->value(), m_area->levelHeight())
        .translated(0, stripHeight());
}

int GridHeader::cellAt(const QPoint &point) const
{
    return m_area->captions().cellAt(point - QPoint(0, stripHeight()), m_area->columns(),
                                     m_area->horizontalScrollBar()->value(), m_area->levelHeight());
}

GridColumn *GridHeader::columnAt(const QPoint &point) const
{
    const int cell = cellAt(point);
    return cell >= 0 ? asColumn(m_area->captions().cells().at(cell).item) : nullptr;
}

GridColumnBase *GridHeader::edgeAt(const QPoint &point) const
{
    const int fixedWidth = m_area->columns().fixedWidth();
    GridColumnBase *found = nullptr;
    for (const HeaderCell &cell : m_area->captions().cells()) {
        const QRect rect = cellRect(cell);
        const int edge = rect.right() + 1;
        const bool hidden = !cell.fixed && edge <= fixedWidth;
        if (!hidden && point.y() >= rect.top() && point.y() <= rect.bottom() &&
            qAbs(point.x() - edge) <= edgeReach)
            found = cell.item;
    }
    return found;
}

void GridHeader::updateFrom(const GridColumn *column)
{
    const int slot = m_area->columns().slotOf(column);
    int left = width();
    for (const HeaderCell &cell : m_area->captions().cells())
        if (cell.firstSlot <= slot && slot <= cell.lastSlot)
            left = qMin(left, cellRect(cell).left());
    left = qMax(0, left);
    update(left, 0, width() - left, height());
}

void GridHeader::scrollColumns(int dx)
{
    const int fixed = m_area->columns().fixedWidth();
    scroll(dx, 0, QRect(fixed, 0, width() - fixed, height()));
    // Captions of bands are centred over the part that shows.
    update(fixed, 0, width() - fixed, height());
}

bool GridHeader::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (!showToolTip(help->pos(), help->globalPos()))
            QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}

bool GridHeader::showToolTip(const QPoint &point, const QPoint &global)
{
    const int number = cellAt(point);
    if (number < 0)
        return false;
    const HeaderCell &cell = m_area->captions().cells().at(number);
    const QRect rect = cellRect(cell);
    const bool sorted = cell.item == m_area->view()->sortColumn();
    const int room = rect.width() - 2 * margin - (sorted ? arrowWidth : 0);
    if (m_texts.whole(cell.item->caption()).width <= room)
        return false;
    QToolTip::showText(global, cell.item->caption().toHtmlEscaped(), this, rect);
    return true;
}

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
        m_draggedColumns = {asColumn(m_dragged)};
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
    GridColumn *column = asColumn(m_dragged);
    const bool clicked = m_drag == Pressed && column && columnAt(event->pos()) == column;
    if (m_drag == Moving)
        finishMove();
    cancelDrag();
    if (clicked)
        sortNext(column);
}

void GridHeader::sortNext(GridColumn *column)
{
    if (column->isSortEnabled())
        column->view()->sortByColumn(column, nextState(column));
}

int GridHeader::nextState(const GridColumn *column)
{
    const int state = column == column->view()->sortColumn() ? column->view()->sortState() : AsDelivered;
    return state == AsDelivered ? SortUp : state == SortUp ? SortDown : AsDelivered;
}

void GridHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (GridColumnBase *item = edgeAt(event->pos()))
        fitWidth(item);
    else
        mousePressEvent(event);
}

void GridHeader::fitWidth(GridColumnBase *item)
{
    if (const auto *band = qobject_cast<GridTableBand *>(item)) {
        for (GridColumn *column : band->columns())
            column->setWidth(column->view()->bestWidth(column));
    } else if (GridColumn *column = asColumn(item)) {
        column->setWidth(column->view()->bestWidth(column));
    }
}

void GridHeader::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    fillHeaderMenu(menu, *m_area, columnAt(event->pos()));
    if (!menu.isEmpty())
        menu.exec(event->globalPos());
}

} // namespace Qtitan
