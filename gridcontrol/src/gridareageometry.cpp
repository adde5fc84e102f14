// Where lines, columns and cells stand.

#include "gridarea.h"
#include "gridheader.h"

#include <gridcontrol/grid.h>

#include <QScrollBar>

namespace Qtitan {

namespace {
constexpr int cellMargin = 6;
constexpr int buttonSize = 16;
constexpr int buttonGap = 4;
} // namespace

void GridArea::columnsChanged()
{
    m_header->cancelDrag();
    // Setting up a table changes each of its columns several times; it is laid out once, when it is looked
    // at.
    m_columnsDirty = true;
    if (isVisible())
        layOutColumns();
}

void GridArea::layOutColumns() const
{
    m_columnsDirty = false;
    m_columns.build(m_view->shownColumns(), viewport()->width());
    m_captions.build(m_columns);
    const_cast<GridArea *>(this)->updateGeometries();
    viewport()->update();
    m_header->update();
}

void GridArea::columnResized(const GridColumn *column)
{
    if (m_columnsDirty || !isVisible()) {
        m_columnsDirty = true;
        return;
    }
    const int slot = m_columns.slotOf(column);
    if (slot < 0)
        return;
    const int left = columns().at(slot).fixed ? columns().screenLeft(slot, 0)
                                              : columns().screenLeft(slot, horizontalOffset());
    const int fixed = columns().fixedCount();
    m_columns.build(m_view->shownColumns(), viewport()->width());
    if (fixed != columns().fixedCount())
        m_captions.build(m_columns);
    updateGeometries();
    const int from = qMax(0, fixed == columns().fixedCount() ? left : 0);
    viewport()->update(from, 0, viewport()->width() - from, viewport()->height());
    // A caption over the column is centred anew over its whole band, so it starts further left.
    m_header->updateFrom(column);
}

void GridArea::updateGeometries()
{
    if (m_updatingGeometries)
        return;
    m_updatingGeometries = true;
    const int headerHeight = m_header->wantedHeight();
    setViewportMargins(0, headerHeight, 0, 0);
    m_header->setGeometry(viewport()->x(), viewport()->y() - headerHeight, viewport()->width(), headerHeight);
    updateScrollBars();
    QAbstractItemView::updateGeometries();
    m_updatingGeometries = false;
}

void GridArea::updateScrollBars()
{
    const int fixedBefore = columns().fixedCount();
    m_columns.build(m_view->shownColumns(), viewport()->width());
    if (fixedBefore != columns().fixedCount())
        m_captions.build(m_columns);

    const qint64 height = qint64(m_rows->rowCount()) * m_lineHeight;
    const int below = int(qMin<qint64>(height - viewport()->height(), std::numeric_limits<int>::max() / 2));
    verticalScrollBar()->setRange(0, qMax(0, below));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(m_lineHeight);
    const int scrolled = viewport()->width() - columns().fixedWidth();
    horizontalScrollBar()->setRange(0, qMax(0, columns().totalWidth() - viewport()->width()));
    horizontalScrollBar()->setPageStep(qMax(1, scrolled));
    horizontalScrollBar()->setSingleStep(40);
}

int GridArea::horizontalOffset() const
{
    return horizontalScrollBar()->value();
}

int GridArea::verticalOffset() const
{
    return verticalScrollBar()->value();
}

int GridArea::firstVisibleLine() const
{
    return m_rows->rowCount() ? verticalOffset() / m_lineHeight : -1;
}

int GridArea::lastVisibleLine() const
{
    return qMin(m_rows->rowCount() - 1, (verticalOffset() + viewport()->height() - 1) / m_lineHeight);
}

int GridArea::lineAt(int y) const
{
    const int line = y + verticalOffset() < 0 ? -1 : (y + verticalOffset()) / m_lineHeight;
    return line < m_rows->rowCount() ? line : -1;
}

QRect GridArea::lineRect(int line) const
{
    const qint64 top = qint64(line) * m_lineHeight - verticalOffset();
    // Lines far away keep a place outside the viewport that can be added to.
    const int bounded = int(qBound<qint64>(-1000000, top, 1000000));
    return QRect(0, bounded, qMax(viewport()->width(), columns().totalWidth()), m_lineHeight);
}

QRect GridArea::cellRect(int line, int slot) const
{
    const QRect row = lineRect(line);
    return QRect(columns().screenLeft(slot, horizontalOffset()), row.top(), columns().at(slot).width,
                 row.height());
}

QRect GridArea::buttonRect(const QRect &cell, const GridColumn &column, int button) const
{
    const int side = column.button(button).position == ButtonLeft ? ButtonLeft : ButtonRight;
    int before = 0;
    for (int i = 0; i < button; ++i)
        before += (column.button(i).position == ButtonLeft) == (side == ButtonLeft);
    const int shift = buttonGap + before * (buttonSize + buttonGap);
    const int x = side == ButtonLeft ? cell.left() + shift : cell.right() - shift - buttonSize;
    return QRect(x, cell.top() + (cell.height() - buttonSize) / 2, buttonSize, buttonSize);
}

QRect GridArea::textRect(const QRect &cell, const GridColumn &column) const
{
    int left = cellMargin;
    int right = cellMargin;
    for (int i = 0; i < column.buttonCount(); ++i)
        (column.button(i).position == ButtonLeft ? left : right) += buttonSize + buttonGap;
    return cell.adjusted(left, 0, -right, -1);
}

QModelIndex GridArea::indexAt(const QPoint &point) const
{
    const int line = lineAt(point.y());
    const int slot = columns().slotAt(point.x(), horizontalOffset());
    if (line >= 0 && slot < 0 && isGroupLine(line))
        return indexFor(line, 0);
    return line >= 0 ? indexFor(line, slot) : QModelIndex();
}

QRect GridArea::visualRect(const QModelIndex &index) const
{
    const int slot = index.isValid() ? columns().slotOfModelColumn(index.column()) : -1;
    return slot >= 0 ? cellRect(index.row(), slot) : QRect();
}

bool GridArea::isIndexHidden(const QModelIndex &index) const
{
    return columns().slotOfModelColumn(index.column()) < 0;
}

void GridArea::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    // Until it is laid out, the view has no size to scroll by.
    if (!isVisible()) {
        m_scrollWhenShown = index;
        return;
    }
    const int top = index.row() * m_lineHeight;
    const int page = viewport()->height();
    if (hint == PositionAtCenter)
        verticalScrollBar()->setValue(top - (page - m_lineHeight) / 2);
    else if (hint == PositionAtTop || top < verticalOffset())
        verticalScrollBar()->setValue(top);
    else if (hint == PositionAtBottom || top + m_lineHeight > verticalOffset() + page)
        verticalScrollBar()->setValue(top + m_lineHeight - page);

    const int slot = columns().slotOfModelColumn(index.column());
    if (slot < 0 || columns().at(slot).fixed || isGroupLine(index.row()))
        return;
    const QRect cell = cellRect(index.row(), slot);
    const int fixed = columns().fixedWidth();
    if (cell.left() < fixed || cell.width() > viewport()->width() - fixed)
        horizontalScrollBar()->setValue(horizontalOffset() + cell.left() - fixed);
    else if (cell.right() >= viewport()->width())
        horizontalScrollBar()->setValue(horizontalOffset() + cell.right() + 1 - viewport()->width());
}

QRect GridArea::changedRect(const QModelIndex &first, const QModelIndex &last) const
{
    const QRect lines = lineRect(first.row()).united(lineRect(last.row()));
    QRect changed;
    for (int slot = 0; slot < columns().count(); ++slot) {
        const int column = columns().at(slot).column->index();
        if (first.column() <= column && column <= last.column())
            changed |= QRect(columns().screenLeft(slot, horizontalOffset()), lines.top(),
                             columns().at(slot).width, lines.height());
    }
    return changed;
}

} // namespace Qtitan
