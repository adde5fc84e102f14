#include "gridarea.h"

#include "celltext.h"
#include "gridfindbar.h"
#include "gridheader.h"
#include "gridpainter.h"
#include "gridscrollbar.h"

#include <gridcontrol/grid.h>

#include <QAccessible>
#include <QLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QtMath>

namespace Qtitan {

namespace {
constexpr int rowHeight = 24;
constexpr int captionHeight = 26;
constexpr int cellMargin = 6;
constexpr int buttonSize = 16;
constexpr int buttonGap = 4;

QFont scaled(QFont font, qreal factor)
{
    if (font.pixelSize() > 0)
        font.setPixelSize(qMax(1, qRound(font.pixelSize() * factor)));
    else
        font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}
} // namespace

GridArea::GridArea(GridViewBase *view, QWidget *parent)
    : QAbstractItemView(parent)
    , m_view(view)
    , m_rows(new RowModel(this))
    , m_header(new GridHeader(this))
{
    setFrameShape(NoFrame);
    setVerticalScrollBar(new GridScrollBar(Qt::Vertical, this));
    setHorizontalScrollBar(new GridScrollBar(Qt::Horizontal, this));
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setModel(m_rows);
    connect(m_rows, &QAbstractItemModel::rowsRemoved, this, [this] { metricsChanged(); });
    connect(m_rows, &QAbstractItemModel::layoutChanged, this, [this] { metricsChanged(); });
    connect(m_rows, &QAbstractItemModel::headerDataChanged, this, [this] { m_header->update(); });
    connect(&options(), &GridViewOptions::appearanceChanged, this, &GridArea::appearanceChanged);
    connect(&options(), &GridViewOptions::selectionPolicyChanged, this, &GridArea::applySelectionPolicy);
    connect(&options(), &GridViewOptions::zoomFactorChanged, this, [this] {
        metricsChanged();
        showZoom();
    });
    applySelectionPolicy();
}

GridArea::~GridArea()
{
    delete m_findBar;
}

GridViewOptions &GridArea::options() const
{
    return m_view->options();
}

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

void GridArea::showEvent(QShowEvent *event)
{
    QAbstractItemView::showEvent(event);
    if (m_columnsDirty)
        layOutColumns();
    scrollTo(m_scrollWhenShown);
    m_scrollWhenShown = QModelIndex();
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

void GridArea::metricsChanged()
{
    // Not the own font: a style sheet on the grid does not hand its font down.
    m_texts.setFont(scaled(m_view->grid()->font(), options().zoomFactor()));
    const qreal zoom = options().zoomFactor();
    m_lineHeight = qMax(qRound(rowHeight * zoom), m_texts.textHeight() + 4);
    m_levelHeight = qMax(qRound(captionHeight * zoom), QFontMetrics(m_header->captionFont()).height() + 6);
    updateGeometries();
    viewport()->update();
    m_header->update();
}

void GridArea::appearanceChanged()
{
    m_colors = m_view->grid()->colors();
    viewport()->update();
    m_header->update();
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

void GridArea::scrollContentsBy(int dx, int dy)
{
    if (dy)
        viewport()->scroll(0, dy);
    if (dx) {
        const int fixed = columns().fixedWidth();
        viewport()->scroll(dx, 0, QRect(fixed, 0, viewport()->width() - fixed, viewport()->height()));
        m_header->scrollColumns(dx);
    }
    const QPoint pointer = viewport()->mapFromGlobal(QCursor::pos());
    setHover(viewport()->underMouse() ? placeAt(pointer) : CellPlace());
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

QString GridArea::textOf(int line, int slot) const
{
    if (const RowGroup *group = m_rows->order().groupAt(line))
        return slot == 0 ? group->key : QString();
    const GridColumn *column = columns().at(slot).column;
    const QString text = displayText(m_rows->sourceIndex(line, column->index()).data(), locale());
    return column->isLink() ? linkText(text).caption : text;
}

QModelIndex GridArea::indexFor(int line, int slot) const
{
    return slot >= 0 && slot < columns().count() ? m_rows->index(line, columns().at(slot).column->index())
                                                 : QModelIndex();
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

void GridArea::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    GridPainter(*this, painter).paint(event->region());
}

void GridArea::dataChanged(const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles)
{
    // The toolkit's own would repaint the whole page for more than one cell.
    if (first == last)
        QAbstractItemView::dataChanged(first, last, roles);
    else if (QAccessible::isActive())
        reportDataChanged(first, last);
    if (isVisible() && !m_columnsDirty && first.isValid() && last.isValid())
        viewport()->update(changedRect(first, last));
    // Captions follow the alignment of the first row.
    if (first.row() == 0)
        m_header->update();
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

void GridArea::reportDataChanged(const QModelIndex &first, const QModelIndex &last)
{
    QAccessibleTableModelChangeEvent event(this, QAccessibleTableModelChangeEvent::DataChanged);
    event.setFirstRow(first.row());
    event.setLastRow(last.row());
    event.setFirstColumn(first.column());
    event.setLastColumn(last.column());
    QAccessible::updateAccessibility(&event);
}

void GridArea::rowsInserted(const QModelIndex &parent, int first, int last)
{
    QAbstractItemView::rowsInserted(parent, first, last);
    metricsChanged();
}

void GridArea::reset()
{
    QAbstractItemView::reset();
    m_hover = {};
    m_pressed = {};
    m_anchor = QModelIndex();
    m_reportedRow = -1;
    metricsChanged();
}

void GridArea::updateLine(int line)
{
    if (line >= 0)
        viewport()->update(lineRect(line));
}

void GridArea::setHover(const CellPlace &place)
{
    if (place == m_hover)
        return;
    const CellPlace before = m_hover;
    m_hover = place;
    if (before.line != place.line || before.slot != place.slot || before.link != place.link ||
        before.button != place.button) {
        updateLine(before.line);
        if (before.line != place.line)
            updateLine(place.line);
    }
    const bool hand = place.link || place.button >= 0;
    viewport()->setCursor(hand ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

CellPlace GridArea::placeAt(const QPoint &point) const
{
    CellPlace place;
    if (!viewport()->rect().contains(point))
        return place;
    place.line = lineAt(point.y());
    place.slot = columns().slotAt(point.x(), horizontalOffset());
    if (place.line < 0 || place.slot < 0 || isGroupLine(place.line))
        return place;
    const GridColumn &column = *columns().at(place.slot).column;
    if (!column.isLink() && column.buttonCount() == 0)
        return place;
    const QString text = textOf(place.line, place.slot);
    if (text.isEmpty())
        return place;
    const QRect cell = cellRect(place.line, place.slot);
    for (int i = 0; i < column.buttonCount(); ++i)
        if (buttonRect(cell, column, i).contains(point))
            place.button = i;
    if (column.isLink() && place.button < 0) {
        const QModelIndex source = m_rows->sourceIndex(place.line, column.index());
        place.link = GridPainter::drawnTextRect(textRect(cell, column), m_texts.font(), text,
                                                alignmentOfCell(source, column, source.data()))
                         .contains(point);
    }
    return place;
}

void GridArea::markText(const QString &text)
{
    if (text == m_marked)
        return;
    m_marked = text;
    viewport()->update();
}

void GridArea::showFindBar()
{
    if (!m_findBar) {
        m_findBar = new GridFindBar(this, parentWidget());
        parentWidget()->layout()->addWidget(m_findBar);
    }
    m_findBar->start();
}

} // namespace Qtitan
