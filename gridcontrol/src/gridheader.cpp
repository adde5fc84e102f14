#include "gridheader.h"

#include "gridarea.h"
#include "gridmenu.h"

#include <gridcontrol/grid.h>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>

namespace Qtitan {

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

TextCache &GridHeader::texts()
{
    const QFont font = captionFont();
    if (!m_texts || m_texts->font() != font)
        m_texts = TextCache::ofFont(font);
    return *m_texts;
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
    return cell >= 0 ? qobject_cast<GridColumn *>(m_area->captions().cells().at(cell).item) : nullptr;
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
    if (texts().whole(cell.item->caption()).width <= room)
        return false;
    QToolTip::showText(global, cell.item->caption().toHtmlEscaped(), this, rect);
    return true;
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
    } else if (GridColumn *column = qobject_cast<GridColumn *>(item)) {
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
