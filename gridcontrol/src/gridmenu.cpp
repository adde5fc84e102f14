#include "gridmenu.h"

#include "gridarea.h"
#include "gridheader.h"

#include <gridcontrol/grid.h>

#include <QApplication>
#include <QClipboard>
#include <QMenu>

namespace Qtitan {

namespace {
void addSortActions(QMenu &menu, GridColumn *column)
{
    GridViewBase *view = column->view();
    const int current = view->sortColumn() == column ? view->sortState() : AsDelivered;
    const auto add = [&](const QString &text, int state) {
        QAction *action =
            menu.addAction(text, column, [view, column, state] { view->sortByColumn(column, state); });
        action->setCheckable(true);
        action->setChecked(current == state);
    };
    add(GridBase::tr("升序"), SortUp);
    add(GridBase::tr("降序"), SortDown);
    add(GridBase::tr("原始顺序"), AsDelivered);
    menu.addSeparator();
}

// To the next place on one side where the column may stand.
void addMoveAction(QMenu &menu, const QString &text, GridColumn *column, int step)
{
    GridViewBase *view = column->view();
    const QVector<GridColumn *> shown = view->shownColumns();
    QAction *action = menu.addAction(text);
    action->setEnabled(false);
    for (int place = shown.indexOf(column) + step; place >= 0 && place <= shown.size(); place += step) {
        GridColumn *before = shown.value(place);
        if (!view->canMoveColumns({column}, before))
            continue;
        action->setEnabled(true);
        QObject::connect(action, &QAction::triggered, column,
                         [view, column, before] { view->moveColumns({column}, before); });
        return;
    }
}

void addLayoutActions(QMenu &menu, GridViewBase *view, GridColumn *column)
{
    menu.addSeparator();
    if (column) {
        menu.addAction(GridBase::tr("按此列分组"), column, [column] { column->setGroupIndex(0); });
        menu.addAction(GridBase::tr("隐藏此列"), column, [column] { column->setVisible(false); });
    }
    QMenu *list = menu.addMenu(GridBase::tr("显示列"));
    for (int i = 0; i < view->getColumnCount(); ++i) {
        GridColumn *entry = view->getColumn(i);
        QAction *action = list->addAction(entry->caption());
        action->setCheckable(true);
        action->setChecked(entry->isVisible());
        QObject::connect(action, &QAction::toggled, entry, &GridColumn::setVisible);
    }
}

void addGroupActions(QMenu &menu, GridArea &area)
{
    if (area.rows().groupColumns().isEmpty())
        return;
    menu.addSeparator();
    menu.addAction(GridBase::tr("展开全部"), &area, [&area] { area.setAllGroupsOpen(true); });
    menu.addAction(GridBase::tr("折叠全部"), &area, [&area] { area.setAllGroupsOpen(false); });
    if (area.options().isMainMenuDisabled())
        return;
    menu.addAction(GridBase::tr("取消分组"), &area, [&area] {
        for (int column : QVector<int>(area.rows().groupColumns()))
            area.view()->getColumn(column)->setGroupIndex(-1);
    });
}
} // namespace

void fillCellMenu(QMenu &menu, GridArea &area)
{
    const bool some = area.selectionModel()->hasSelection();
    QAction *copy = menu.addAction(GridBase::tr("复制"), &area, &GridArea::copySelection, QKeySequence::Copy);
    QAction *withHeader =
        menu.addAction(GridBase::tr("复制(含表头)"), &area, &GridArea::copySelectionWithHeader,
                       Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    copy->setEnabled(some);
    withHeader->setEnabled(some);
    const QModelIndex current = area.currentIndex();
    const int slot = current.isValid() ? area.columns().slotOfModelColumn(current.column()) : -1;
    if (slot >= 0 && !area.isGroupLine(current.row())) {
        const QString text = area.textOf(current.row(), slot);
        menu.addAction(GridBase::tr("复制单元格"), [text] { QApplication::clipboard()->setText(text); })
            ->setEnabled(!text.isEmpty());
    }
    if (slot >= 0) {
        GridColumn *column = area.columns().at(slot).column;
        fillHeaderMenu(*menu.addMenu(GridBase::tr("列: %1").arg(column->caption())), area, column);
    }
    menu.addSeparator();
    menu.addAction(GridBase::tr("全选"), &area, &QAbstractItemView::selectAll, QKeySequence::SelectAll)
        ->setEnabled(area.options().selectionPolicy() >= CellSelection);
    menu.addAction(GridBase::tr("查找..."), area.view(), &GridViewBase::showFindBar, QKeySequence::Find);
    addGroupActions(menu, area);
}

void fillHeaderMenu(QMenu &menu, GridArea &area, GridColumn *column)
{
    if (column && column->isSortEnabled())
        addSortActions(menu, column);
    if (column)
        menu.addAction(GridBase::tr("自适应列宽"), column, [column] { GridHeader::fitWidth(column); });
    menu.addAction(GridBase::tr("全部自适应列宽"), &area, [&area] {
        for (GridColumn *shown : area.view()->shownColumns())
            GridHeader::fitWidth(shown);
    });
    if (column) {
        menu.addSeparator();
        addMoveAction(menu, GridBase::tr("左移"), column, -1);
        addMoveAction(menu, GridBase::tr("右移"), column, 1);
    }
    if (!area.options().isMainMenuDisabled())
        addLayoutActions(menu, area.view(), column);
}

} // namespace Qtitan
