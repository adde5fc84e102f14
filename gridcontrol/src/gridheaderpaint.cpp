#include "celltext.h"
#include "gridarea.h"
#include "gridheader.h"
#include "gridpainter.h"

#include <gridcontrol/grid.h>

#include <QPaintEvent>
#include <QPainter>

namespace Qtitan {

void GridHeader::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setFont(texts().font());
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
    const GridColumn *column = qobject_cast<GridColumn *>(cell.item);
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
    const TextCache::Entry entry = m_texts->fitting(
        cell.item->caption(), room.width() - (sorted ? arrowWidth : 0), unitOf(cell.item->caption()));
    const Qt::Alignment alignment = column ? column->cellAlignment() : Qt::Alignment(Qt::AlignHCenter);
    const int whole = entry.width + (sorted ? arrowWidth : 0);
    int x = room.left();
    if (alignment & Qt::AlignRight)
        x = room.right() + 1 - whole;
    else if (alignment & Qt::AlignHCenter)
        x = qMax(room.left(), room.left() + (room.width() - whole) / 2);
    painter.setPen(m_area->colors().headerText);
    m_texts->draw(painter, x, rect.top() + (rect.height() - m_texts->textHeight()) / 2, entry);
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

} // namespace Qtitan
