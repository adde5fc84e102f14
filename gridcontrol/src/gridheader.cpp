#include "gridheader.h"

#include "celltext.h"
#include "gridarea.h"
#include "gridmenu.h"
#include "gridpainter.h"

#include <gridcontrol/grid.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <numeric>

namespace Qtitan {

namespace {
constexpr int edgeReach = 4;
constexpr int margin = 6;
constexpr int arrowWidth = 12;

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
    QFont font =
        m_area->options().hasColumnFont() ? m_area->options().columnFont() : m_area->view()->grid()->font();
    const qreal zoom = m_area->options().zoomFactor();
    if (font.pixelSize() > 0)
        font.setPixelSize(qRound(font.pixelSize() * zoom));
    else
        font.setPointSizeF(font.pointSizeF() * zoom);
    return font;
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

void GridHeader::paintEvent(QPaintEvent *event)
{
    m_texts.setFont(captionFont());
    QPainter painter(this);
    painter.setFont(m_texts.font());
    painter.fillRect(event->rect(), m_area->colors().headerBackground);
    if (stripHeight())
        paintStrip(painter);
    const int fixed = m_area->columns().fixedWidth();
    paintCells(painter, event->rect(), false);
    if (event->rect().left() < fixed) {
        painter.fillRect(QRect(0, stripHeight(), fixed, height()), m_area->colors().headerBackground);
        paintCells(painter, event->rect(), true);
    }
    const qreal pixel = GridPainter::devicePixel(painter);
    painter.fillRect(QRectF(0, height() - pixel, width(), pixel), m_area->colors().strongLine);
    if (m_drag == Moving && m_dropX >= 0 && m_dropAllowed)
        painter.fillRect(QRect(m_dropX - 1, stripHeight(), 2, height()), m_area->colors().accent);
}

void GridHeader::paintStrip(QPainter &painter) const
{
    QStringList names;
    for (int column : m_area->rows().groupColumns())
        names.append(m_area->view()->getColumn(column)->caption());
    const QString text = names.isEmpty()
                             ? GridBase::tr("未分组")
                             : GridBase::tr("分组: %1").arg(names.join(QStringLiteral(" \u203a ")));
    painter.setPen(m_area->colors().muted);
    painter.drawText(QRect(margin, 0, width() - 2 * margin, stripHeight()), Qt::AlignVCenter, text);
    painter.fillRect(QRect(0, stripHeight() - 1, width(), 1), m_area->colors().line);
}

void GridHeader::paintCells(QPainter &painter, const QRect &rect, bool fixed)
{
    const qreal pixel = GridPainter::devicePixel(painter);
    for (const HeaderCell &cell : m_area->captions().cells()) {
        const QRect place = cellRect(cell);
        if (cell.fixed == fixed && place.intersects(rect))
            paintCell(painter, cell, place, pixel);
    }
}

void GridHeader::paintEdges(QPainter &painter, const HeaderCell &cell, const QRect &rect, qreal pixel) const
{
    const GridColors &colors = m_area->colors();
    const bool strong = m_area->columns().at(cell.lastSlot).strongRight;
    painter.fillRect(QRectF(rect.right() + 1 - pixel, rect.top(), pixel, rect.height()),
                     strong ? colors.strongLine : colors.line);
    if (cell.isBand)
        painter.fillRect(QRectF(rect.left(), rect.bottom() + 1 - pixel, rect.width(), pixel), colors.line);
}

void GridHeader::paintCell(QPainter &painter, const HeaderCell &cell, const QRect &rect, qreal pixel)
{
    paintEdges(painter, cell, rect, pixel);
    const GridColumn *column = asColumn(cell.item);
    QRect room = rect.adjusted(margin, 0, -margin, 0);
    // The caption of a band that is partly scrolled away stays in sight.
    if (cell.isBand) {
        const int from = cell.fixed ? 0 : m_area->columns().fixedWidth();
        const int left = qMax(room.left(), from + margin);
        const int right = qMin(room.right(), width() - margin);
        if (right - left > 48)
            room = QRect(QPoint(left, room.top()), QPoint(right, room.bottom()));
    }
    const bool sorted = column && column == m_area->view()->sortColumn();
    const TextCache::Entry entry = m_texts.fitting(
        cell.item->caption(), room.width() - (sorted ? arrowWidth : 0), unitOf(cell.item->caption()));
    const Qt::Alignment alignment = column ? column->cellAlignment() : Qt::Alignment(Qt::AlignHCenter);
    const int whole = entry.width + (sorted ? arrowWidth : 0);
    int x = room.left();
    if (alignment & Qt::AlignRight)
        x = room.right() + 1 - whole;
    else if (alignment & Qt::AlignHCenter)
        x = qMax(room.left(), room.left() + (room.width() - whole) / 2);
    painter.setPen(m_area->colors().headerText);
    m_texts.draw(painter, x, rect.top() + (rect.height() - m_texts.textHeight()) / 2, entry);
    if (sorted)
        paintArrow(painter, QRectF(x + entry.width + 4, rect.center().y() - 2, 8, 5),
                   m_area->view()->sortState() == SortUp);
}

void GridHeader::paintArrow(QPainter &painter, const QRectF &rect, bool up) const
{
    const QPointF upwards[] = {rect.bottomLeft(), rect.bottomRight(), {rect.center().x(), rect.top()}};
    const QPointF downwards[] = {rect.topLeft(), rect.topRight(), {rect.center().x(), rect.bottom()}};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_area->colors().accent);
    painter.drawPolygon(up ? upwards : downwards, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
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
