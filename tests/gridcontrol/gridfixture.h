#pragma once

#include "columnlayout.h"
#include "gridarea.h"
#include "gridheader.h"
#include "headerlayout.h"

#include <gridcontrol/grid.h>

#include <QScrollBar>
#include <QStandardItemModel>
#include <QtTest>

using namespace Qtitan;

/// Makes \a model one of \a rows and \a columns whose cells read "r0c0" and whose captions read "c0".
inline void fill(QStandardItemModel &model, int rows, int columns)
{
    model.setRowCount(rows);
    model.setColumnCount(columns);
    for (int column = 0; column < columns; ++column) {
        model.setHorizontalHeaderItem(column, new QStandardItem(QStringLiteral("c%1").arg(column)));
        for (int row = 0; row < rows; ++row)
            model.setItem(row, column, new QStandardItem(QStringLiteral("r%1c%2").arg(row).arg(column)));
    }
}

/// A grid of columns of 100 pixels, shown.
struct Table
{
    explicit Table(int rows = 20, int columns = 4, int viewType = PlainTableView)
    {
        fill(model, rows, columns);
        grid.setViewType(viewType);
        view = grid.rootView();
        view->setModel(&model);
        for (int i = 0; i < columns; ++i)
            view->getColumn(i)->setWidth(100);
        grid.resize(500, 300);
        grid.show();
    }

    GridArea &area() { return *view->area(); }
    QWidget *viewport() { return area().viewport(); }
    QPoint middle(int line, int slot) { return area().cellRect(line, slot).center(); }
    void click(const QPoint &point, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(viewport(), Qt::LeftButton, keys, point);
    }
    void makeLinks(int column)
    {
        view->getColumn(column)->setEditorType(StringEditor);
        static_cast<GridStringEditorRepository *>(view->getColumn(column)->editorRepository())
            ->setHLink(true);
    }

    QStandardItemModel model;
    Grid grid;
    GridViewBase *view;
};

/// A wide one with bands.
struct Banded : Table
{
    explicit Banded(int columns = 5)
        : Table(50, columns, BandedTableView)
    {
        grid.resize(900, 400);
    }

    GridTableBand *band(const QString &caption, const QVector<int> &columns, GridTableBand *parent = nullptr)
    {
        GridTableBand *made = static_cast<GridBandedTableView *>(view)->addBand(caption);
        if (parent)
            made->setBandIndex(parent->index());
        for (int column : columns)
            static_cast<GridBandedTableColumn *>(view->getColumn(column))->setBandIndex(made->index());
        return made;
    }
    QPoint rightEdge(const GridColumnBase *item)
    {
        for (const HeaderCell &cell : area().captions().cells())
            if (cell.item == item) {
                const QRect rect = area().header()->cellRect(cell);
                return QPoint(rect.right(), rect.center().y());
            }
        return QPoint();
    }
};

/// What was painted of a widget since it is watched.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget) { widget->installEventFilter(this); }
    QRect painted;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted |= static_cast<QPaintEvent *>(event)->rect();
        return false;
    }
};

inline QString shownCaptions(const GridViewBase &view)
{
    QStringList all;
    for (const GridColumn *column : view.shownColumns())
        all.append(column->caption());
    return all.join(' ');
}

/// What the lines of the screen show in their first column; group rows as "[key count]".
inline QString linesOf(const RowModel &rows)
{
    QStringList all;
    for (int line = 0; line < rows.rowCount(); ++line) {
        const RowGroup *group = rows.order().groupAt(line);
        all.append(group ? QString("[%1 %2]").arg(group->key).arg(group->count())
                         : rows.index(line, 0).data().toString());
    }
    return all.join(' ');
}

/// A move of the pointer as a widget gets it; the toolkit's test function would move the screen's pointer
/// instead.
inline void movePointer(QWidget *widget, const QPoint &to, Qt::MouseButtons buttons = Qt::NoButton)
{
    QMouseEvent move(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

inline void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    movePointer(widget, (from + to) / 2, Qt::LeftButton);
    movePointer(widget, to, Qt::LeftButton);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}
