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

/// A plain grid of columns of 100 pixels, shown.
struct Table
{
    explicit Table(int rows = 20, int columns = 4)
    {
        fill(model, rows, columns);
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

/// The captions of the header as text, one cell a string: "caption level+levels slots".
inline QStringList captionsOf(const GridArea &area)
{
    QStringList all;
    for (const HeaderCell &cell : area.captions().cells())
        all.append(QStringLiteral("%1 %2+%3 %4-%5")
                       .arg(cell.item->caption())
                       .arg(cell.level)
                       .arg(cell.levels)
                       .arg(cell.firstSlot)
                       .arg(cell.lastSlot));
    return all;
}

inline QStringList shownCaptions(const GridViewBase &view)
{
    QStringList all;
    for (const GridColumn *column : view.shownColumns())
        all.append(column->caption());
    return all;
}

/// What the lines of the screen show in the first shown column; group rows as "[key count]".
inline QStringList linesOf(const GridArea &area)
{
    QStringList all;
    for (int line = 0; line < area.rows().rowCount(); ++line) {
        const RowGroup *group = area.rows().order().groupAt(line);
        all.append(group ? QStringLiteral("[%1 %2]").arg(group->key).arg(group->count())
                         : area.textOf(line, 0));
    }
    return all;
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
