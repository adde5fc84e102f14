#include "gridfixture.h"

#include <subjecttest.h>

#include <QAccessible>

class GridAccessTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void tableIsOneAcrossTheFrozenEdge()
    {
        Table shown(3, 4);
        shown.view->getColumn(2)->setFixedKind(FixedLeft);
        shown.view->getColumn(1)->setVisible(false);
        QAccessibleInterface *all = interfaceOf(shown.grid);
        QAccessibleTableInterface *table = all->tableInterface();

        QCOMPARE(all->role(), QAccessible::Table);
        QCOMPARE(table->rowCount(), 3);
        QCOMPARE(table->columnCount(), 3);
        QCOMPARE(all->childCount(), 12);
        QCOMPARE(table->cellAt(1, 0)->text(QAccessible::Name), QString("r1c2"));
        QCOMPARE(table->cellAt(1, 2)->text(QAccessible::Name), QString("r1c3"));
        QCOMPARE(all->child(1)->text(QAccessible::Name), QString("c0"));
        for (int i = 0; i < all->childCount(); ++i)
            QCOMPARE(all->indexOfChild(all->child(i)), i);
        QCOMPARE(all->child(12), nullptr);
        QCOMPARE(table->cellAt(3, 0), nullptr);
    }

    void headerCellsAreTheWholePath()
    {
        Banded banded(2);
        banded.band("half", {1}, banded.band("year", {}));
        QAccessibleTableInterface *table = interfaceOf(banded.grid)->tableInterface();

        QStringList path;
        for (QAccessibleInterface *cell : table->cellAt(0, 1)->tableCellInterface()->columnHeaderCells())
            path.append(cell->text(QAccessible::Name));

        QCOMPARE(path.join(" / "), QString("year / half / c1"));
        QCOMPARE(table->cellAt(0, 1)->text(QAccessible::Description), QString("year / half / c1"));
    }

    void groupRowTellsItsStateAndToggles()
    {
        Table shown(2, 2);
        shown.view->getColumn(1)->setGroupIndex(0);
        QAccessibleTableInterface *table = interfaceOf(shown.grid)->tableInterface();
        QAccessibleInterface *group = table->cellAt(0, 0);

        QCOMPARE(group->text(QAccessible::Name), QString("r0c1 (1)"));
        QCOMPARE(group->text(QAccessible::Description), QString("c1"));
        QVERIFY(group->state().expandable && group->state().collapsed);
        group->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(table->cellAt(0, 0)->state().expanded);
        QCOMPARE(table->rowCount(), 3);
    }

    void captionSortsAndTells()
    {
        Table shown(3, 2);
        shown.view->getColumn(1)->setSortEnabled(false);
        QAccessibleInterface *table = interfaceOf(shown.grid);
        const auto press = [&](int column) {
            QAccessibleInterface *caption = table->child(column);
            caption->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            return caption->text(QAccessible::Description);
        };

        QCOMPARE(press(0), QString("升序"));
        QCOMPARE(press(0), QString("降序"));
        QCOMPARE(shown.view->visibleRows(), QVector<int>({2, 1, 0}));
        QCOMPARE(press(1), QString());
        QVERIFY(table->child(1)->actionInterface()->actionNames().isEmpty());
    }

    void selectionIsReadAndSet()
    {
        Table shown(5, 3);
        QAccessibleTableInterface *table = interfaceOf(shown.grid)->tableInterface();

        QVERIFY(table->selectRow(1));
        QVERIFY(table->selectRow(3));
        QCOMPARE(table->selectedRows(), QList<int>({1, 3}));
        QCOMPARE(table->selectedCellCount(), 6);
        QAccessibleInterface *cell = table->cellAt(3, 2);
        QVERIFY(cell->state().selected);
        QVERIFY(table->unselectRow(1));
        QCOMPARE(shown.view->selectedRows(), QVector<int>({3}));
        QVERIFY(!table->selectColumn(0));
        QVERIFY(!table->selectRow(9));

        shown.view->getColumn(1)->setVisible(false);
        QVERIFY(!cell->isValid());
        QVERIFY(cell->text(QAccessible::Name).isEmpty());
    }

private:
    static QAccessibleInterface *interfaceOf(Grid &grid)
    {
        return QAccessible::queryAccessibleInterface(grid.rootView()->itemView());
    }
};

SUBJECT_TEST_MAIN(GridAccessTest)
#include "tst_gridaccess.moc"
