#include "gridpainter.h"

#include "gridarea.h"

#include <gridcontrol/grid.h>

#include <QPainter>
#include <QScrollBar>

namespace Qtitan {

namespace {
bool drawsRowLines(int style)
{
    return style != NoGridLines && style != VerticalGridLines;
}

bool drawsColumnLines(int style)
{
    return style != NoGridLines && style != HorizontalGridLines;
}
} // namespace

GridPainter::GridPainter(GridArea &area, QPainter &painter)
    : m_area(area)
    , m_painter(painter)
    , m_pixel(devicePixel(painter))
    , m_offset(area.horizontalScrollBar()->value())
    , m_rowsSelected(area.selectsRows())
{
    painter.setFont(area.texts().font());
}

void GridPainter::paint(const QRegion &region)
{
    for (const QRect &rect : region)
        paintRect(rect);
    paintFocus();
}

void GridPainter::paintRect(const QRect &rect)
{
    const int first = m_area.lineAt(rect.top());
    if (first < 0) {
        paintBeyond(rect, m_area.rows().rowCount() - 1);
    } else {
        const int below = m_area.lineAt(rect.bottom());
        const int last = below < 0 ? m_area.rows().rowCount() - 1 : below;
        paintRows(rect, first, last);
        paintBeyond(rect, last);
    }
    if (m_area.rows().rowCount() == 0)
        paintEmpty(rect);
}

GridPainter::Line GridPainter::lineFor(int number) const
{
    const GridColors &colors = m_area.colors();
    Line line{number, m_area.lineRect(number), false, m_area.hover().line == number, colors.panel};
    if (m_rowsSelected)
        line.selected = m_area.selectionModel()->isSelected(m_area.rows().index(number, 0));
    if (line.selected)
        line.background = colors.selection;
    else if (line.hovered)
        line.background = colors.hover;
    else if (number % 2 && m_area.options().alternatingRowColors())
        line.background = colors.alternate;
    return line;
}

void GridPainter::paintRows(const QRect &rect, int first, int last)
{
    const ColumnLayout &columns = m_area.columns();
    const int width = qMin(rect.right() + 1, columns.totalWidth() - m_offset);
    const int fixedWidth = columns.fixedWidth();
    const int firstScrolled = columns.firstScrolledAfter(qMax(rect.left(), fixedWidth), m_offset);
    for (int number = first; number <= last; ++number) {
        const Line line = lineFor(number);
        if (const RowGroup *group = m_area.rows().order().groupAt(number)) {
            paintGroup(*group, line);
            continue;
        }
        const QRect row = line.rect & rect;
        m_painter.fillRect(QRect(row.left(), row.top(), qMax(0, width - row.left()), row.height()),
                           line.background);
        paintCells(line, firstScrolled, columns.count(), rect.right());
        if (rect.left() < fixedWidth) {
            m_painter.fillRect(QRect(0, line.rect.top(), fixedWidth, line.rect.height()), line.background);
            paintCells(line, 0, columns.fixedCount(), rect.right());
        }
        if (drawsRowLines(m_area.options().gridLines()))
            m_painter.fillRect(
                QRectF(rect.left(), line.rect.bottom() + 1 - m_pixel, width - rect.left(), m_pixel),
                m_area.colors().line);
    }
    paintVerticalLines(rect, m_area.lineRect(last).bottom());
}

void GridPainter::paintVerticalLines(const QRect &rect, int bottom)
{
    const ColumnLayout &columns = m_area.columns();
    const int style = m_area.options().gridLines();
    const QColor soft = style == BothGridLines || style == VerticalGridLines ? m_area.colors().line
                                                                             : m_area.colors().softLine;
    const auto draw = [&](int from, int to, int top, int end) {
        for (int slot = from; slot < to; ++slot) {
            const ColumnSlot &place = columns.at(slot);
            const int right = columns.screenLeft(slot, m_offset) + place.width;
            if (right - place.width > rect.right())
                return;
            if (place.strongRight || drawsColumnLines(style))
                m_painter.fillRect(QRectF(right - m_pixel, top, m_pixel, end - top),
                                   place.strongRight ? m_area.colors().strongLine : soft);
        }
    };
    const int firstScrolled = columns.firstScrolledAfter(qMax(rect.left(), columns.fixedWidth()), m_offset);
    // Group rows have no columns: the lines leave them out.
    const RowOrder &order = m_area.rows().order();
    int line = qMax(0, m_area.lineAt(rect.top()));
    while (m_area.lineRect(line).top() <= qMin(bottom, rect.bottom()) && line < order.lineCount()) {
        int end = line;
        while (end < order.lineCount() && !order.groupAt(end) && m_area.lineRect(end).top() <= rect.bottom())
            ++end;
        if (end > line) {
            draw(firstScrolled, columns.count(), m_area.lineRect(line).top(),
                 m_area.lineRect(end - 1).bottom() + 1);
            draw(0, columns.fixedCount(), m_area.lineRect(line).top(), m_area.lineRect(end - 1).bottom() + 1);
        }
        line = end + 1;
    }
}

void GridPainter::paintBeyond(const QRect &rect, int lastLine)
{
    const QWidget *outer = m_area.view()->grid()->parentWidget();
    const bool transparent = m_area.options().isTransparentBackground() && outer;
    const QColor color = transparent ? outer->palette().color(QPalette::Base) : m_area.colors().panel;
    const int end = m_area.columns().totalWidth() - m_offset;
    const int below = lastLine < 0 ? 0 : m_area.lineRect(lastLine).bottom() + 1;
    if (rect.right() >= end && rect.top() < below)
        m_painter.fillRect(QRect(QPoint(qMax(end, rect.left()), rect.top()), QPoint(rect.right(), below - 1)),
                           color);
    if (rect.bottom() >= below)
        m_painter.fillRect(QRect(QPoint(rect.left(), qMax(below, rect.top())), rect.bottomRight()), color);
    // A group row spans the viewport, so what was painted beyond the columns is its own again.
    if (m_area.rows().order().groupCount() == 0 || rect.right() < end)
        return;
    for (int line = qMax(0, m_area.lineAt(rect.top())); line <= lastLine; ++line)
        if (const RowGroup *group = m_area.rows().order().groupAt(line))
            paintGroup(*group, lineFor(line));
}

void GridPainter::paintEmpty(const QRect &)
{
    const QString own = m_area.options().emptyText();
    m_painter.setPen(m_area.colors().muted);
    m_painter.drawText(m_area.viewport()->rect(), Qt::AlignCenter,
                       own.isEmpty() ? GridBase::tr("无数据") : own);
}

void GridPainter::paintGroup(const RowGroup &group, const Line &line)
{
    const GridColors &colors = m_area.colors();
    const QPalette palette = m_area.options().groupPalette(group.level);
    const auto own = [&palette](QPalette::ColorRole role, const QColor &otherwise) {
        return palette.isBrushSet(QPalette::Active, role) ? palette.color(QPalette::Active, role) : otherwise;
    };
    const QRect rect(0, line.rect.top(), m_area.viewport()->width(), line.rect.height());
    const QColor background = line.selected ? colors.selection : own(QPalette::Dark, colors.headerBackground);
    m_painter.fillRect(rect, background);
    m_painter.fillRect(QRectF(0, rect.bottom() + 1 - m_pixel, rect.width(), m_pixel),
                       own(QPalette::Shadow, colors.line));

    const QColor key = line.selected ? colors.selectionText : own(QPalette::BrightText, colors.text);
    const QColor quiet = mixed(key, background, 0.35);
    const int indent = 8 + group.level * 16;
    const QPointF middle(indent + 4, rect.center().y() + 0.5);
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(QPen(quiet, 1.5));
    m_painter.setBrush(Qt::NoBrush);
    const QPointF open[] = {middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)};
    const QPointF closed[] = {middle + QPointF(-2, -4), middle + QPointF(2, 0), middle + QPointF(-2, 4)};
    m_painter.drawPolyline(group.open ? open : closed, 3);
    m_painter.setRenderHint(QPainter::Antialiasing, false);

    const QRect textRect = rect.adjusted(indent + 16, 0, -8, -1);
    const int width = m_area.texts().fitting(group.key, textRect.width()).width;
    m_painter.setPen(key);
    drawText(textRect, group.key, Qt::AlignLeft);
    m_painter.setPen(quiet);
    drawText(textRect.adjusted(width + 8, 0, 0, 0), QStringLiteral("(%1)").arg(group.count()), Qt::AlignLeft);
}

void GridPainter::paintCells(const Line &line, int firstSlot, int endSlot, int right)
{
    for (int slot = firstSlot; slot < endSlot; ++slot) {
        const QRect cell(m_area.columns().screenLeft(slot, m_offset), line.rect.top(),
                         m_area.columns().at(slot).width, line.rect.height());
        if (cell.left() > right)
            break;
        paintCell(line, slot, cell);
    }
}

void GridPainter::paintFocus()
{
    const QModelIndex current = m_area.currentIndex();
    // While the find bar has the keyboard, the frame tells which of the marked cells is the current one.
    const bool framed = m_area.hasFocus() || !m_area.markedText().isEmpty();
    if (!framed || !current.isValid() || m_area.columns().count() == 0)
        return;
    QRect cell = m_area.visualRect(current);
    bool fixed = false;
    if (m_area.isGroupLine(current.row())) {
        cell =
            QRect(0, m_area.lineRect(current.row()).top(), m_area.viewport()->width(), m_area.lineHeight());
        fixed = true;
    } else {
        const int slot = m_area.columns().slotOfModelColumn(current.column());
        fixed = slot >= 0 && m_area.columns().at(slot).fixed;
    }
    if (!cell.isValid())
        return;
    m_painter.save();
    if (!fixed)
        m_painter.setClipRect(m_area.viewport()->rect().adjusted(m_area.columns().fixedWidth(), 0, 0, 0));
    const QColor color = m_area.colors().focus;
    const QRectF frame = QRectF(cell).adjusted(0, 0, -m_pixel, -m_pixel);
    m_painter.fillRect(QRectF(frame.left(), frame.top(), frame.width(), 1), color);
    m_painter.fillRect(QRectF(frame.left(), frame.bottom() - 1, frame.width(), 1), color);
    m_painter.fillRect(QRectF(frame.left(), frame.top(), 1, frame.height()), color);
    m_painter.fillRect(QRectF(frame.right() - 1, frame.top(), 1, frame.height()), color);
    m_painter.restore();
}

qreal GridPainter::devicePixel(const QPainter &painter)
{
    return 1.0 / painter.deviceTransform().m11();
}

} // namespace Qtitan
