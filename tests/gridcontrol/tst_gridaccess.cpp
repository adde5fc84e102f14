#include "gridfixture.h"

#include <subjecttest.h>

#include <QAccessible>

class GridAccessTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void tableIsOneAcrossTheFrozenEdge();
    void headerCellsAreTheWholePath();
    void groupRowTellsItsStateAndToggles();
    void captionSortsAndTells();
    void selectionIsReadAndSet();
    void cellOfARowThatWentIsInvalid();

private:
    static QAccessibleInterface *interfaceOf(Grid &grid)
    {
        return QAccessible::queryAccessibleInterface(grid.rootView()->itemView());
    }
};

void GridAccessTest::tableIsOneAcrossTheFrozenEdge()
{
    QStandardItemModel model;
    fill(model, 3, 4);
    Grid grid;
    grid.rootView()->setModel(&model);
    grid.rootView()->getColumn(2)->setFixedKind(FixedLeft);
    grid.rootView()->getColumn(1)->setVisible(false);
    QAccessibleInterface *table = interfaceOf(grid);

    QCOMPARE(table->role(), QAccessible::Table);
    QCOMPARE(table->tableInterface()->rowCount(), 3);
    QCOMPARE(table->tableInterface()->columnCount(), 3);
    QCOMPARE(table->childCount(), 12);
    QCOMPARE(table->tableInterface()->cellAt(1, 0)->text(QAccessible::Name), QString("r1c2"));
    QCOMPARE(table->tableInterface()->cellAt(1, 2)->text(QAccessible::Name), QString("r1c3"));
    QCOMPARE(table->child(1)->text(QAccessible::Name), QString("c0"));
    QCOMPARE(table->child(1)->role(), QAccessible::ColumnHeader);
    for (int i = 0; i < table->childCount(); ++i)
        QCOMPARE(table->indexOfChild(table->child(i)), i);
    QCOMPARE(table->child(12), nullptr);
    QCOMPARE(table->tableInterface()->cellAt(3, 0), nullptr);
}

void GridAccessTest::headerCellsAreTheWholePath()
{
    QStandardItemModel model;
    fill(model, 2, 2);
    Grid grid;
    grid.setViewType(BandedTableView);
    auto *view = static_cast<GridBandedTableView *>(grid.rootView());
    view->setModel(&model);
    view->addBand("year");
    view->addBand("half")->setBandIndex(0);
    static_cast<GridBandedTableColumn *>(view->getColumn(1))->setBandIndex(1);
    QAccessibleTableInterface *table = interfaceOf(grid)->tableInterface();

    QStringList path;
    for (QAccessibleInterface *cell : table->cellAt(0, 1)->tableCellInterface()->columnHeaderCells())
        path.append(cell->text(QAccessible::Name));

    QCOMPARE(path, QStringList({"year", "half", "c1"}));
    QCOMPARE(table->columnDescription(1), QString("year / half / c1"));
    QCOMPARE(table->cellAt(0, 1)->text(QAccessible::Description), QString("year / half / c1"));
}

void GridAccessTest::groupRowTellsItsStateAndToggles()
{
    QStandardItemModel model;
    fill(model, 2, 2);
    Grid grid;
    grid.rootView()->setModel(&model);
    grid.rootView()->getColumn(1)->setGroupIndex(0);
    QAccessibleInterface *group = interfaceOf(grid)->tableInterface()->cellAt(0, 0);

    QCOMPARE(group->text(QAccessible::Name), QString("r0c1 (1)"));
    QCOMPARE(group->text(QAccessible::Description), QString("c1"));
    QVERIFY(group->state().expandable && group->state().collapsed);
    group->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(interfaceOf(grid)->tableInterface()->cellAt(0, 0)->state().expanded);
    QCOMPARE(interfaceOf(grid)->tableInterface()->rowCount(), 3);
}

void GridAccessTest::captionSortsAndTells()
{
    QStandardItemModel model;
    fill(model, 3, 2);
    Grid grid;
    grid.rootView()->setModel(&model);
    grid.rootView()->getColumn(1)->setSortEnabled(false);
    QAccessibleInterface *table = interfaceOf(grid);
    const auto press = [&](int column) {
        QAccessibleInterface *caption = table->child(column);
        caption->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        return caption->text(QAccessible::Description);
    };

    QCOMPARE(press(0), QString("升序"));
    QCOMPARE(press(0), QString("降序"));
    QCOMPARE(grid.rootView()->visibleRows(), QVector<int>({2, 1, 0}));
    QCOMPARE(press(1), QString());
    QVERIFY(table->child(1)->actionInterface()->actionNames().isEmpty());
    QCOMPARE(grid.rootView()->sortColumn(), grid.rootView()->getColumn(0));
}

void GridAccessTest::selectionIsReadAndSet()
{
    QStandardItemModel model;
    fill(model, 5, 3);
    Grid grid;
    grid.rootView()->setModel(&model);
    QAccessibleTableInterface *table = interfaceOf(grid)->tableInterface();

    QVERIFY(table->selectRow(1));
    QVERIFY(table->selectRow(3));
    QCOMPARE(table->selectedRows(), QList<int>({1, 3}));
    QCOMPARE(table->selectedCellCount(), 6);
    QVERIFY(table->cellAt(3, 2)->state().selected);
    QVERIFY(table->unselectRow(1));
    QCOMPARE(grid.rootView()->selectedRows(), QVector<int>({3}));
    QVERIFY(!table->selectColumn(0));
    QVERIFY(!table->selectRow(9));
}

void GridAccessTest::cellOfARowThatWentIsInvalid()
{
    QStandardItemModel model;
    fill(model, 2, 2);
    Grid grid;
    grid.rootView()->setModel(&model);
    QAccessibleInterface *cell = interfaceOf(grid)->tableInterface()->cellAt(1, 1);
    QVERIFY(cell->isValid());

    grid.rootView()->getColumn(1)->setVisible(false);
    QVERIFY(!cell->isValid());
    QVERIFY(cell->text(QAccessible::Name).isEmpty());
}

SUBJECT_TEST_MAIN(GridAccessTest)
#include "tst_gridaccess.moc"
