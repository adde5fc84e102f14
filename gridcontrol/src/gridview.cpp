#include <gridcontrol/gridview.h>

#include "gridarea.h"
#include "gridcopy.h"
#include "gridheader.h"

#include <gridcontrol/grid.h>

#include <QLayout>

#include <algorithm>

namespace Qtitan {

GridViewBase::GridViewBase(GridBase *grid)
    : QObject(grid)
    , m_grid(grid)
    , m_options(new GridViewOptions(this))
    , m_area(new GridArea(this, grid))
{
    connect(&m_area->rows(), &RowModel::sourceColumnsChanged, this, &GridViewBase::syncColumns);
    connect(m_options, &GridViewOptions::groupingChanged, this, &GridViewBase::regroup);
    connect(m_options, &GridViewOptions::layoutChanged, m_area, [this] {
        m_grid->layout()->setContentsMargins(m_options->borderWidth(), m_options->borderWidth(),
                                             m_options->borderWidth(), m_options->borderWidth());
        m_area->columnsChanged();
        m_area->metricsChanged();
    });
}

GridViewBase::~GridViewBase()
{
    // The area reads the columns, which go with this view.
    delete m_area;
}

QAbstractItemModel *GridViewBase::model() const
{
    return m_area->rows().sourceModel();
}

QModelIndex GridViewBase::rootIndex() const
{
    return m_area->rows().sourceRoot();
}

QAbstractItemView *GridViewBase::itemView() const
{
    return m_area;
}

void GridViewBase::setModel(QAbstractItemModel *model, const QModelIndex &root)
{
    m_order.clear();
    m_sortColumn = nullptr;
    m_sortState = AsDelivered;
    m_area->columnsChanged();
    qDeleteAll(m_columns);
    m_columns.clear();
    m_area->rows().setSource(model, root);
    syncColumns();
}

void GridViewBase::sortByColumn(GridColumn *column, int state)
{
    if (state != SortUp && state != SortDown)
        column = nullptr;
    m_sortColumn = column;
    m_sortState = column ? state : AsDelivered;
    SortOrder order;
    if (column) {
        order.column = column->index();
        order.role = column->dataBinding()->sortRole();
        order.descending = state == SortDown;
        order.localeAware = column->isSortLocaleAware();
        order.locale = m_grid->locale();
    }
    m_area->rows().setSortOrder(order);
    m_area->header()->update();
    emit sortChanged();
}

int GridViewBase::focusRow() const
{
    const QModelIndex current = m_area->currentIndex();
    return current.isValid() ? m_area->rows().order().rowAt(current.row()) : -1;
}

void GridViewBase::setFocusRow(int modelRow)
{
    m_area->rows().reveal(modelRow);
    const int line = m_area->rows().order().lineOf(modelRow);
    const int column = m_area->currentIndex().isValid() ? m_area->currentIndex().column() : -1;
    const int slot = m_area->columns().slotOfModelColumn(column);
    m_area->setCurrentCell(line, qMax(0, slot), QItemSelectionModel::ClearAndSelect);
}

QVector<int> GridViewBase::visibleRows() const
{
    QVector<int> rows;
    const RowOrder &order = m_area->rows().order();
    for (int line = 0; line < order.lineCount(); ++line)
        if (order.rowAt(line) >= 0)
            rows.append(order.rowAt(line));
    return rows;
}

QVector<int> GridViewBase::selectedRows() const
{
    QVector<int> lines;
    for (const QItemSelectionRange &range : m_area->selectionModel()->selection())
        for (int line = range.top(); line <= range.bottom(); ++line)
            lines.append(line);
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    QVector<int> rows;
    for (int line : qAsConst(lines))
        if (m_area->rows().order().rowAt(line) >= 0)
            rows.append(m_area->rows().order().rowAt(line));
    return rows;
}

QVector<GridGroup> GridViewBase::groups() const
{
    QVector<GridGroup> groups;
    const RowOrder &order = m_area->rows().order();
    for (int line = 0; order.groupCount() > 0 && line < order.lineCount(); ++line)
        if (const RowGroup *group = order.groupAt(line))
            groups.append({group->key, group->level, group->count(), group->open});
    return groups;
}

bool GridViewBase::followLink(int modelRow, const GridColumn *column)
{
    const int line = m_area->rows().order().lineOf(modelRow);
    return line >= 0 && m_area->followLink(line, m_area->columns().slotOf(column));
}

void GridViewBase::deselectAll()
{
    m_area->clearSelection();
}

void GridViewBase::selectAll()
{
    m_area->selectAll();
}

void GridViewBase::expandAll()
{
    m_area->setAllGroupsOpen(true);
}

void GridViewBase::collapseAll()
{
    m_area->setAllGroupsOpen(false);
}

QMimeData *GridViewBase::copySelection(bool withHeader) const
{
    return copiedSelection(*m_area, withHeader);
}

void GridViewBase::showFindBar()
{
    m_area->showFindBar();
}

} // namespace Qtitan
