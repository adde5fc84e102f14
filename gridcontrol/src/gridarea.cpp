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

namespace Qtitan {

namespace {
constexpr int rowHeight = 24;
constexpr int captionHeight = 26;
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

void GridArea::showEvent(QShowEvent *event)
{
    QAbstractItemView::showEvent(event);
    if (m_columnsDirty)
        layOutColumns();
    scrollTo(m_scrollWhenShown);
    m_scrollWhenShown = QModelIndex();
}

QFont GridArea::zoomed(QFont font) const
{
    const qreal factor = options().zoomFactor();
    if (font.pixelSize() > 0)
        font.setPixelSize(qMax(1, qRound(font.pixelSize() * factor)));
    else
        font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

void GridArea::metricsChanged()
{
    // Not the own font: a style sheet on the grid does not hand its font down.
    m_texts = TextCache::ofFont(zoomed(m_view->grid()->font()));
    const qreal zoom = options().zoomFactor();
    m_lineHeight = qMax(qRound(rowHeight * zoom), m_texts->textHeight() + 4);
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
        place.link = GridPainter::drawnTextRect(textRect(cell, column), m_texts->font(), text,
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
