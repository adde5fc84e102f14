#include "demofeatures.h"

#include "demoview.h"
#include "quotemodel.h"

#include <gridcontrol/grid.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>

using namespace Qtitan;

namespace {
QItemSelectionModel *selectionOf(Grid &grid)
{
    return grid.rootView()->itemView()->selectionModel();
}

// A block of cells, columns as the model counts them.
void selectBlock(Grid &grid, int top, int left, int bottom, int right)
{
    grid.rootView()->options().setSelectionPolicy(CellSelection);
    const QAbstractItemModel *lines = grid.rootView()->itemView()->model();
    selectionOf(grid)->setCurrentIndex(lines->index(bottom, right), QItemSelectionModel::NoUpdate);
    selectionOf(grid)->select(QItemSelection(lines->index(top, left), lines->index(bottom, right)),
                              QItemSelectionModel::ClearAndSelect);
}

// Laid out, so that it can be scrolled and clicked.
void showBandedNow(Grid &grid, QuoteModel &model)
{
    showBanded(grid, model);
    QApplication::processEvents();
}

void showFrozen(Grid &grid, QuoteModel &model)
{
    showBandedNow(grid, model);
    grid.rootView()->itemView()->horizontalScrollBar()->setValue(330);
    selectBlock(grid, 2, QuoteModel::Code, 5, QuoteModel::FirstFigure + 2);
}

void showGroups(Grid &grid, QuoteModel &model)
{
    showBanded(grid, model);
    GridViewBase *view = grid.rootView();
    view->options().setGroupsHeader(true);
    view->sortByColumn(view->getColumn(QuoteModel::FirstFigure), SortDown);
    view->getColumn(QuoteModel::Board)->setGroupIndex(0);
    view->expandAll();
}

void showSorted(Grid &grid, QuoteModel &model)
{
    showPlain(grid, model);
    grid.rootView()->sortByColumn(grid.rootView()->getColumn(QuoteModel::Name), SortUp);
}

void showFound(Grid &grid, QuoteModel &model)
{
    showBanded(grid, model);
    grid.rootView()->showFindBar();
    if (auto *edit = grid.findChild<QLineEdit *>())
        edit->setText(QStringLiteral("科技"));
}

void showNarrow(Grid &grid, QuoteModel &model)
{
    showBanded(grid, model);
    for (int i = QuoteModel::FirstFigure; i < model.columnCount(); ++i)
        grid.rootView()->getColumn(i)->setWidth(76);
}

// The half-year report on its way behind the annual one's neighbour.
void showMove(Grid &grid, QuoteModel &model)
{
    showBandedNow(grid, model);
    QWidget *header = grid.findChild<QWidget *>(QStringLiteral("gridHeader"));
    const auto point = [&](QEvent::Type type, const QPoint &at) {
        QMouseEvent event(type, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(header, &event);
    };
    const QPoint from(840, 39);
    point(QEvent::MouseButtonPress, from);
    for (int x : {800, 500, 440})
        point(QEvent::MouseMove, QPoint(x, from.y()));
}

void showCopied(Grid &grid, QuoteModel &model)
{
    showBanded(grid, model);
    selectBlock(grid, 1, QuoteModel::Note, 4, QuoteModel::FirstFigure + 2);
    QApplication::clipboard()->setMimeData(grid.rootView()->copySelection(true));
}
} // namespace

const QVector<Feature> &features()
{
    static const QVector<Feature> all{{QStringLiteral("bands"), QStringLiteral("多级表头"), showBanded},
                                      {QStringLiteral("plain"), QStringLiteral("单级表头"), showPlain},
                                      {QStringLiteral("frozen"), QStringLiteral("固定列"), showFrozen},
                                      {QStringLiteral("groups"), QStringLiteral("分组"), showGroups},
                                      {QStringLiteral("sort"), QStringLiteral("排序"), showSorted},
                                      {QStringLiteral("find"), QStringLiteral("查找"), showFound},
                                      {QStringLiteral("captions"), QStringLiteral("省略的表头"), showNarrow},
                                      {QStringLiteral("move"), QStringLiteral("移动表头"), showMove},
                                      {QStringLiteral("copy"), QStringLiteral("复制"), showCopied}};
    return all;
}
