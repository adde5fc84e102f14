// The columns of a view: how they follow the model, group the rows, are moved and measured.

#include "gridarea.h"
#include "gridheader.h"

#include <gridcontrol/grid.h>

#include <algorithm>

namespace Qtitan {

namespace {
// Room of the text's margins, of the line, and of the sort arrow over it.
constexpr int cellRoom = 14;
constexpr int captionRoom = 26;
} // namespace

GridColumn *GridViewBase::makeColumn(int index)
{
    return new GridColumn(this, index);
}

void GridViewBase::syncColumns()
{
    const int wanted = m_area->rows().columnCount();
    const bool fewer = wanted < m_columns.size();
    QVector<GridColumn *> gone;
    while (m_columns.size() > wanted) {
        gone.append(m_columns.takeLast());
        m_order.removeOne(gone.last());
    }
    while (m_columns.size() < wanted) {
        GridColumn *column = makeColumn(m_columns.size());
        watch(column);
        m_columns.append(column);
        m_order.append(column);
    }
    m_area->columnsChanged();
    if (gone.contains(m_sortColumn))
        sortByColumn(nullptr, AsDelivered);
    qDeleteAll(gone);
    if (fewer)
        regroup();
    emit columnsChanged();
}

void GridViewBase::watch(GridColumn *column)
{
    connect(column, &GridColumnBase::widthChanged, m_area, [this, column] {
        m_area->columnResized(column);
        emit columnsChanged();
    });
    connect(column, &GridColumnBase::placeChanged, m_area, [this] {
        m_area->columnsChanged();
        emit columnsChanged();
    });
    connect(column, &GridColumnBase::captionChanged, m_area, [this] { m_area->header()->update(); });
    connect(column, &GridColumnBase::alignmentChanged, m_area, &GridArea::appearanceChanged);
    connect(column, &GridColumn::cellsChanged, m_area, &GridArea::appearanceChanged);
    connect(column, &GridColumn::groupIndexChanged, this, &GridViewBase::regroup);
    connect(column, &GridColumn::sortingChanged, this, [this, column] {
        if (column == m_sortColumn)
            sortByColumn(column, m_sortState);
    });
}

void GridViewBase::regroup()
{
    QVector<GridColumn *> grouping;
    if (m_options->isGroupingEnabled())
        std::copy_if(m_columns.begin(), m_columns.end(), std::back_inserter(grouping),
                     [](const GridColumn *column) { return column->groupIndex() >= 0; });
    std::stable_sort(grouping.begin(), grouping.end(), [](const GridColumn *a, const GridColumn *b) {
        return a->groupIndex() < b->groupIndex();
    });
    QVector<int> columns;
    for (const GridColumn *column : qAsConst(grouping))
        columns.append(column->index());
    m_area->rows().setGroupColumns(columns);
    m_area->columnsChanged();
    emit columnsChanged();
}

GridColumn *GridViewBase::getColumnByCaption(const QString &caption) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [&](const GridColumn *column) { return column->caption() == caption; });
    return found == m_columns.end() ? nullptr : *found;
}

QVector<GridColumn *> GridViewBase::shownColumns() const
{
    QVector<GridColumn *> shown;
    const bool hideGrouping = m_options->isGroupingEnabled() && m_options->columnHidingOnGroupingEnabled();
    for (GridColumn *column : m_order)
        if (isShown(column) && !(hideGrouping && column->groupIndex() >= 0))
            shown.append(column);
    std::stable_partition(shown.begin(), shown.end(),
                          [](const GridColumn *column) { return isFixed(column); });
    return shown;
}

// Shown columns as they would stand; none if they may not.
QVector<GridColumn *> GridViewBase::orderAfterMove(const QVector<GridColumn *> &columns,
                                                   GridColumn *before) const
{
    const QVector<GridColumn *> shown = shownColumns();
    QVector<GridColumn *> order = shown;
    for (GridColumn *column : columns)
        if (!order.removeOne(column))
            return {};
    const int place = before ? order.indexOf(before) : order.size();
    if (place < 0)
        return {};
    for (int i = 0; i < columns.size(); ++i)
        order.insert(place + i, columns.at(i));
    const bool allowed = order != shown && std::is_partitioned(order.begin(), order.end(), isFixed) &&
                         bandPieces(order) <= bandPieces(shown);
    return allowed ? order : QVector<GridColumn *>();
}

bool GridViewBase::canMoveColumns(const QVector<GridColumn *> &columns, GridColumn *before) const
{
    return !orderAfterMove(columns, before).isEmpty();
}

bool GridViewBase::moveColumns(const QVector<GridColumn *> &columns, GridColumn *before)
{
    const QVector<GridColumn *> order = orderAfterMove(columns, before);
    if (order.isEmpty())
        return false;
    for (GridColumn *column : columns)
        m_order.removeOne(column);
    // Next to a neighbour of their own side: among the columns that are not shown or on the other side of the
    // edge nothing changes.
    const int first = order.indexOf(columns.first());
    const bool hasLeft = first > 0 && isFixed(order.at(first - 1)) == isFixed(columns.first());
    const int place = hasLeft ? m_order.indexOf(order.at(first - 1)) + 1
                              : m_order.indexOf(order.at(first + columns.size()));
    for (int i = 0; i < columns.size(); ++i)
        m_order.insert(place + i, columns.at(i));
    m_area->columnsChanged();
    emit columnsChanged();
    return true;
}

int GridViewBase::bestWidth(const GridColumn *column) const
{
    int width =
        QFontMetrics(m_area->header()->captionFont()).horizontalAdvance(column->caption()) + captionRoom;
    const int slot = m_area->columns().slotOf(column);
    const int room = cellRoom + column->buttonCount() * 20;
    for (int line = m_area->firstVisibleLine(); slot >= 0 && line >= 0 && line <= m_area->lastVisibleLine();
         ++line)
        if (!m_area->isGroupLine(line))
            width = qMax(width, m_area->texts().whole(m_area->textOf(line, slot)).width + room);
    return width;
}

QStringList GridViewBase::headerPath(const GridColumn *column) const
{
    QStringList path;
    for (const GridColumnBase *item = column; item; item = item->parentBand())
        if (!item->caption().isEmpty())
            path.prepend(item->caption());
    return path;
}

} // namespace Qtitan
