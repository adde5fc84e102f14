#include "celltext.h"
#include "gridarea.h"
#include "gridpainter.h"

#include <gridcontrol/grid.h>

#include <QIcon>
#include <QPainter>

namespace Qtitan {

namespace {
int alignedLeft(const QRect &rect, int width, Qt::Alignment alignment)
{
    if (alignment & Qt::AlignRight)
        return rect.right() + 1 - width;
    if (alignment & Qt::AlignHCenter)
        return qMax(rect.left(), rect.left() + (rect.width() - width) / 2);
    return rect.left();
}

QColor foregroundOf(const QModelIndex &index)
{
    const QVariant value = index.data(Qt::ForegroundRole);
    if (!value.isValid())
        return QColor();
    return value.userType() == QMetaType::QColor ? value.value<QColor>() : value.value<QBrush>().color();
}
} // namespace

bool GridPainter::isCellSelected(const Line &line, const GridColumn &column) const
{
    return m_rowsSelected
               ? line.selected
               : m_area.selectionModel()->isSelected(m_area.rows().index(line.number, column.index()));
}

void GridPainter::paintCell(const Line &line, int slot, const QRect &cell)
{
    const GridColumn &column = *m_area.columns().at(slot).column;
    const QModelIndex index = m_area.rows().sourceIndex(line.number, column.index());
    const bool selected = isCellSelected(line, column);
    if (selected && !m_rowsSelected)
        m_painter.fillRect(cell, m_area.colors().selection);
    const QVariant value = index.data(Qt::DisplayRole);
    if (!value.isValid())
        return;
    QString text = displayText(value, m_area.locale());
    if (text.isEmpty())
        return;
    const QRect rect = m_area.textRect(cell, column);
    const Qt::Alignment alignment = alignmentOfCell(index, column, value);
    if (column.isLink()) {
        text = linkText(text).caption;
        const CellPlace &hover = m_area.hover();
        paintMark(cell, text);
        paintLink(rect, text, alignment, hover.link && hover.line == line.number && hover.slot == slot);
    } else {
        paintMark(cell, text);
        const QColor own = foregroundOf(index);
        const GridColors &colors = m_area.colors();
        m_painter.setPen(own.isValid() ? own : selected ? colors.selectionText : colors.text);
        drawText(rect, text, alignment);
    }
    if (column.buttonCount())
        paintButtons(line, slot, cell);
}

void GridPainter::drawText(const QRect &rect, const QString &text, Qt::Alignment alignment)
{
    if (rect.width() <= 0)
        return;
    const TextCache::Entry entry = m_area.texts().fitting(text, rect.width());
    const int top = rect.top() + (rect.height() - m_area.texts().textHeight() + 1) / 2;
    m_area.texts().draw(m_painter, alignedLeft(rect, entry.width, alignment), top, entry);
}

void GridPainter::paintLink(const QRect &rect, const QString &text, Qt::Alignment alignment, bool underlined)
{
    m_painter.setPen(m_area.colors().link);
    drawText(rect, text, alignment);
    if (!underlined)
        return;
    const TextCache::Entry entry = m_area.texts().fitting(text, rect.width());
    const int top = rect.top() + (rect.height() - m_area.texts().textHeight() + 1) / 2;
    const QFontMetrics metrics(m_area.texts().font());
    m_painter.fillRect(
        QRectF(alignedLeft(rect, entry.width, alignment), top + metrics.ascent() + 1.5, entry.width, 1),
        m_area.colors().link);
}

void GridPainter::paintMark(const QRect &rect, const QString &text)
{
    if (m_area.markedText().isEmpty() || !text.contains(m_area.markedText(), Qt::CaseInsensitive))
        return;
    QColor mark = m_area.colors().accent;
    mark.setAlpha(48);
    m_painter.fillRect(rect.adjusted(1, 1, -2, -2), mark);
}

void GridPainter::paintButtons(const Line &line, int slot, const QRect &cell)
{
    const GridColumn &column = *m_area.columns().at(slot).column;
    const QModelIndex current = m_area.currentIndex();
    const bool focused = current.row() == line.number && current.column() == column.index();
    for (int i = 0; i < column.buttonCount(); ++i) {
        const GridCellButton &button = column.button(i);
        const bool shown = button.activation == ShowButtonAlways || focused ||
                           (button.activation == ShowButtonOnHover && line.hovered);
        const CellPlace &hover = m_area.hover();
        if (shown)
            paintButton(button, m_area.buttonRect(cell, column, i),
                        hover.line == line.number && hover.slot == slot && hover.button == i);
    }
}

void GridPainter::paintButton(const GridCellButton &button, const QRect &rect, bool hot)
{
    const GridColors &colors = m_area.colors();
    m_painter.setRenderHint(QPainter::Antialiasing);
    if (hot || !m_area.options().cellButtonAutoRaise()) {
        m_painter.setPen(QPen(hot ? colors.accent : colors.strongLine, 1));
        m_painter.setBrush(colors.panel);
        m_painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
    if (button.icon == CustomButtonIcon) {
        QIcon(button.iconPath).paint(&m_painter, rect.adjusted(2, 2, -2, -2));
    } else {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(hot ? colors.accent : colors.muted);
        const QPointF middle = QRectF(rect).center();
        for (int dot : {-4, 0, 4})
            m_painter.drawEllipse(middle + QPointF(dot, 0), 1.25, 1.25);
    }
    m_painter.setRenderHint(QPainter::Antialiasing, false);
}

QRect GridPainter::drawnTextRect(const QRect &rect, const QFont &font, const QString &text,
                                 Qt::Alignment alignment)
{
    const int width = qMin(rect.width(), QFontMetrics(font).horizontalAdvance(text));
    return QRect(alignedLeft(rect, width, alignment), rect.top(), width, rect.height());
}

} // namespace Qtitan
