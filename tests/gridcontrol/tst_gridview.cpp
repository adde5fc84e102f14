#include "gridfixture.h"

#include <subjecttest.h>

#include <QLineEdit>
#include <QSignalSpy>

class GridViewTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void rowsAreHandedOutAsTheModelCountsThem();
    void viewTakesTheFocusSilently();
    void focusSetBeforeTheFirstShowIsInSight();
    void keysCrossTheFrozenEdge();
    void arrowsOpenAndCloseGroups();
    void clickOnAGroupRowTogglesIt();
    void collapseMovesTheFocusToTheGroup();
    void groupedColumnLeavesTheTable();
    void otherColumnsOfTheModelKeepTheSettings();
    void styleSheetGivesColoursAndFont();
    void newViewReplacesTheOldOne();
    void modelMayDieFirst();
    void scrollPaintsTheNewRowsAlone();
    void changedCellsAloneArePainted();
};

void GridViewTest::rowsAreHandedOutAsTheModelCountsThem()
{
    Table table;
    QSignalSpy focused(table.view, &GridViewBase::focusRowChanged);
    table.view->sortByColumn(table.view->getColumn(0), SortDown); // r9, r8, ..., r2, r19, ...

    table.click(table.middle(0, 1));
    table.click(table.middle(0, 2));
    table.click(table.middle(1, 2));

    QCOMPARE(focused.size(), 2);
    QCOMPARE(focused.at(0), QVariantList({-1, 9}));
    QCOMPARE(focused.at(1), QVariantList({9, 8}));
    table.view->sortByColumn(nullptr, AsDelivered);
    QCOMPARE(table.view->focusRow(), 8);
    QCOMPARE(table.view->selectedRows(), QVector<int>({8}));
    QCOMPARE(focused.size(), 2);
}

void GridViewTest::viewTakesTheFocusSilently()
{
    Table table;
    QSignalSpy focused(table.view, &GridViewBase::focusRowChanged);

    table.grid.activateWindow();
    table.area().setFocus();
    QTRY_VERIFY(table.area().currentIndex().isValid());
    QCOMPARE(focused.size(), 0);

    // The row that got the focus that way is news when the user clicks it.
    table.click(table.middle(0, 0));
    QCOMPARE(focused.size(), 1);
    QCOMPARE(focused.first(), QVariantList({-1, 0}));
}

void GridViewTest::focusSetBeforeTheFirstShowIsInSight()
{
    QStandardItemModel model;
    fill(model, 100, 30);
    Grid grid;
    grid.rootView()->setModel(&model);
    grid.resize(500, 300);
    QScrollBar *bar = grid.rootView()->itemView()->verticalScrollBar();

    grid.rootView()->setFocusRow(3);
    grid.show();
    QCOMPARE(bar->value(), 0);

    grid.hide();
    grid.rootView()->setFocusRow(50);
    grid.show();
    QVERIFY(grid.rootView()->area()->lastVisibleLine() == 50);
}

void GridViewTest::keysCrossTheFrozenEdge()
{
    Table table(20, 12);
    table.view->getColumn(3)->setFixedKind(FixedLeft);
    table.view->setFocusRow(0);
    const auto columnAfter = [&](Qt::Key key) {
        QTest::keyClick(&table.area(), key);
        return table.area().currentIndex().column();
    };

    QTest::keyClick(&table.area(), Qt::Key_Home);
    QCOMPARE(table.area().currentIndex().column(), 3);
    QCOMPARE(columnAfter(Qt::Key_Right), 0);
    QCOMPARE(columnAfter(Qt::Key_End), 11);
    QVERIFY(table.area().horizontalScrollBar()->value() > 0);
    // Back at the first scrolling column the view has scrolled it out from below the fixed one.
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(&table.area(), Qt::Key_Left);
    QCOMPARE(table.area().currentIndex().column(), 0);
    QCOMPARE(table.area().visualRect(table.area().currentIndex()).left(), 100);
    QCOMPARE(columnAfter(Qt::Key_Left), 3);
}

void GridViewTest::arrowsOpenAndCloseGroups()
{
    Table table(4);
    for (int row = 0; row < 4; ++row)
        table.model.item(row, 1)->setText(row % 2 ? "odd" : "even");
    table.view->getColumn(1)->setGroupIndex(0);
    QCOMPARE(linesOf(table.area()), QStringList({"[even 2]", "[odd 2]"}));
    QTest::keyClick(&table.area(), Qt::Key_Down);
    QTest::keyClick(&table.area(), Qt::Key_Up);

    QTest::keyClick(&table.area(), Qt::Key_Right);
    QCOMPARE(linesOf(table.area()), QStringList({"[even 2]", "r0c0", "r2c0", "[odd 2]"}));
    QTest::keyClick(&table.area(), Qt::Key_Space);
    QCOMPARE(linesOf(table.area()), QStringList({"[even 2]", "[odd 2]"}));

    table.view->expandAll();
    QCOMPARE(table.view->visibleRows(), QVector<int>({0, 2, 1, 3}));
    table.view->collapseAll();
    QVERIFY(table.view->visibleRows().isEmpty());
}

void GridViewTest::clickOnAGroupRowTogglesIt()
{
    Table table(4);
    table.view->getColumn(1)->setGroupIndex(0);
    QSignalSpy focused(table.view, &GridViewBase::focusRowChanged);

    table.click(QPoint(450, 12));

    QCOMPARE(linesOf(table.area()).mid(0, 3), QStringList({"[r0c1 1]", "r0c0", "[r1c1 1]"}));
    QCOMPARE(focused.size(), 0);
}

void GridViewTest::collapseMovesTheFocusToTheGroup()
{
    Table table(4);
    for (int row = 0; row < 4; ++row)
        table.model.item(row, 1)->setText("one");
    table.view->getColumn(1)->setGroupIndex(0);

    table.view->setFocusRow(2);
    QCOMPARE(table.area().currentIndex().row(), 3);
    table.view->collapseAll();
    QCOMPARE(table.area().currentIndex().row(), 0);
    QCOMPARE(table.view->focusRow(), -1);
}

void GridViewTest::groupedColumnLeavesTheTable()
{
    Table table;

    table.view->getColumn(1)->setGroupIndex(0);
    QCOMPARE(shownCaptions(*table.view), QStringList({"c0", "c2", "c3"}));
    table.view->options().setColumnHidingOnGroupingEnabled(false);
    QCOMPARE(shownCaptions(*table.view).size(), 4);
    table.view->options().setGroupingEnabled(false);
    QCOMPARE(table.view->visibleRows().size(), 20);
}

void GridViewTest::otherColumnsOfTheModelKeepTheSettings()
{
    Table table;
    table.view->getColumn(1)->setCaption("own");
    table.view->sortByColumn(table.view->getColumn(3), SortUp);

    table.model.setColumnCount(2);
    QCOMPARE(shownCaptions(*table.view), QStringList({"c0", "own"}));
    QCOMPARE(table.view->sortColumn(), nullptr);
    QCOMPARE(table.view->getColumn(2), nullptr);
    table.model.setColumnCount(6);
    QCOMPARE(table.view->getColumnCount(), 6);
    QCOMPARE(table.view->getColumnByCaption("own"), table.view->getColumn(1));
}

void GridViewTest::styleSheetGivesColoursAndFont()
{
    Table table;
    table.grid.setStyleSheet("Qtitan--Grid { background: #010203; color: #a0b0c0; }");
    QCOMPARE(table.grid.colors().panel, QColor(0x010203));
    QCOMPARE(table.grid.colors().text, QColor(0xa0b0c0));
    table.grid.setStyleSheet(table.grid.styleSheet() + " Qtitan--Grid { font-size: 40px; }");
    QCOMPARE(table.area().texts().font().pixelSize(), 40);
    QVERIFY(table.area().lineHeight() > 40);
}

void GridViewTest::newViewReplacesTheOldOne()
{
    Table table;
    const QPointer<GridViewBase> before(table.view);
    table.view->showFindBar();

    table.grid.setViewType(BandedTableView);

    QVERIFY(!before);
    QVERIFY(!table.grid.findChild<QLineEdit *>());
    QCOMPARE(table.grid.rootView()->model(), nullptr);
    table.grid.rootView()->setModel(&table.model);
    QCOMPARE(table.grid.rootView()->getColumnCount(), 4);
}

void GridViewTest::modelMayDieFirst()
{
    Grid grid;
    auto model = std::make_unique<QStandardItemModel>();
    fill(*model, 5, 3);
    grid.rootView()->setModel(model.get());
    grid.rootView()->sortByColumn(grid.rootView()->getColumn(1), SortUp);
    grid.rootView()->getColumn(0)->setGroupIndex(0);
    grid.show();

    model.reset();

    QCOMPARE(grid.rootView()->getColumnCount(), 0);
    QVERIFY(!grid.grab().isNull());
}

void GridViewTest::scrollPaintsTheNewRowsAlone()
{
    Table table(50000);
    QVERIFY(QTest::qWaitForWindowExposed(&table.grid));
    QApplication::processEvents();
    PaintWatch rows(table.viewport());
    PaintWatch header(table.area().header());
    PaintWatch bar(table.area().verticalScrollBar());

    table.area().verticalScrollBar()->setValue(24);
    QTRY_VERIFY(!rows.painted.isEmpty());
    QCOMPARE(rows.painted, QRect(0, table.viewport()->height() - 24, table.viewport()->width(), 24));
    QVERIFY(header.painted.isEmpty());

    // The handle stands where it stood until many rows have gone by, and at the end it stands elsewhere.
    bar.painted = QRect();
    table.area().verticalScrollBar()->setValue(72);
    QApplication::processEvents();
    QVERIFY(bar.painted.isEmpty());
    table.area().verticalScrollBar()->setValue(600000);
    QTRY_VERIFY(!bar.painted.isEmpty());
}

void GridViewTest::changedCellsAloneArePainted()
{
    Table table;
    QVERIFY(QTest::qWaitForWindowExposed(&table.grid));
    QApplication::processEvents();
    PaintWatch rows(table.viewport());

    emit table.model.dataChanged(table.model.index(3, 1), table.model.index(4, 2));

    QTRY_VERIFY(!rows.painted.isEmpty());
    QCOMPARE(rows.painted, table.area().cellRect(3, 1).united(table.area().cellRect(4, 2)));
}

SUBJECT_TEST_MAIN(GridViewTest)
#include "tst_gridview.moc"
