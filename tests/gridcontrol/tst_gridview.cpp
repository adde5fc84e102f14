#include "gridfixture.h"

#include <subjecttest.h>

#include <QLineEdit>
#include <QSignalSpy>

class GridViewTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void focusIsToldAsTheModelCountsTheRows()
    {
        Table table;
        QSignalSpy focused(table.view, &GridViewBase::focusRowChanged);

        table.grid.activateWindow();
        table.area().setFocus();
        QTRY_VERIFY(table.area().currentIndex().isValid());
        QCOMPARE(focused.size(), 0);
        // The row that got the focus that way is news when the user clicks it.
        table.click(table.middle(0, 0));
        QCOMPARE(focused.takeFirst(), QVariantList({-1, 0}));

        table.view->sortByColumn(table.view->getColumn(0), SortDown); // r9, r8, ..., r2, r19, ...
        table.click(table.middle(0, 1));
        table.click(table.middle(0, 2));
        table.click(table.middle(1, 2));

        QCOMPARE(focused.size(), 2);
        QCOMPARE(focused.at(0), QVariantList({0, 9}));
        QCOMPARE(focused.at(1), QVariantList({9, 8}));
        table.view->sortByColumn(nullptr, AsDelivered);
        QCOMPARE(table.view->focusRow(), 8);
        QCOMPARE(table.view->selectedRows(), QVector<int>({8}));
        QCOMPARE(focused.size(), 2);

        // What gets the focus while it is hidden is in sight when it shows.
        table.grid.hide();
        table.view->setFocusRow(17);
        table.grid.show();
        QCOMPARE(table.area().lastVisibleLine(), 17);
    }

    void keysCrossTheFrozenEdge()
    {
        Table table(20, 12);
        table.view->getColumn(3)->setFixedKind(FixedLeft);
        table.view->setFocusRow(0);
        const auto columnAfter = [&](Qt::Key key) {
            QTest::keyClick(&table.area(), key);
            return table.area().currentIndex().column();
        };

        QCOMPARE(columnAfter(Qt::Key_Home), 3);
        QCOMPARE(columnAfter(Qt::Key_Right), 0);
        QCOMPARE(columnAfter(Qt::Key_End), 11);
        QVERIFY(table.area().horizontalScrollBar()->value() > 0);
        // Back at the first scrolling column the view has scrolled it out from below the fixed one.
        for (int i = 0; i < 9; ++i)
            columnAfter(Qt::Key_Left);
        QCOMPARE(columnAfter(Qt::Key_Left), 0);
        QCOMPARE(table.area().visualRect(table.area().currentIndex()).left(), 100);
        QCOMPARE(columnAfter(Qt::Key_Left), 3);
    }

    void groupsOpenAndCloseByKeyAndClick()
    {
        Table table(4);
        for (int row = 0; row < 4; ++row)
            table.model.item(row, 1)->setText(row % 2 ? "odd" : "even");
        table.view->getColumn(1)->setGroupIndex(0);
        QSignalSpy focused(table.view, &GridViewBase::focusRowChanged);
        const auto after = [&](Qt::Key key) {
            QTest::keyClick(&table.area(), key);
            return linesOf(table.area().rows());
        };

        QCOMPARE(after(Qt::Key_Down), QString("[even 2] [odd 2]"));
        after(Qt::Key_Up);
        QCOMPARE(after(Qt::Key_Right), QString("[even 2] r0c0 r2c0 [odd 2]"));
        QCOMPARE(after(Qt::Key_Space), QString("[even 2] [odd 2]"));
        table.click(QPoint(450, 12));
        QCOMPARE(linesOf(table.area().rows()), QString("[even 2] r0c0 r2c0 [odd 2]"));
        QCOMPARE(focused.size(), 0);

        table.view->expandAll();
        QCOMPARE(table.view->visibleRows(), QVector<int>({0, 2, 1, 3}));
    }

    void groupsTakeTheFocusAndTheColumn()
    {
        Table table(4);
        for (int row = 0; row < 4; ++row)
            table.model.item(row, 1)->setText("one");
        table.view->getColumn(1)->setGroupIndex(0);
        table.view->getColumn(2)->setGroupIndex(1);

        table.view->setFocusRow(1);
        QCOMPARE(table.area().currentIndex().row(), 3); // below "one" and two groups of the second level
        table.view->collapseAll();
        QCOMPARE(table.area().currentIndex().row(), 0);
        QCOMPARE(table.view->focusRow(), -1);

        QCOMPARE(shownCaptions(*table.view), QString("c0 c3"));
        table.view->options().setColumnHidingOnGroupingEnabled(false);
        QCOMPARE(shownCaptions(*table.view), QString("c0 c1 c2 c3"));
        table.view->options().setGroupingEnabled(false);
        QCOMPARE(table.view->visibleRows().size(), 4);
    }

    void otherColumnsOfTheModelKeepTheSettings()
    {
        Table table;
        table.view->getColumn(1)->setCaption("own");
        table.view->sortByColumn(table.view->getColumn(3), SortUp);

        table.model.setColumnCount(2);
        QCOMPARE(shownCaptions(*table.view), QString("c0 own"));
        QCOMPARE(table.view->sortColumn(), nullptr);
        QCOMPARE(table.view->getColumn(2), nullptr);
        table.model.setColumnCount(6);
        QCOMPARE(table.view->getColumnCount(), 6);
        QCOMPARE(table.view->getColumnByCaption("own"), table.view->getColumn(1));
    }

    void styleSheetGivesColoursAndFont()
    {
        Table table;
        table.grid.setStyleSheet("Qtitan--Grid { background: #010203; color: #a0b0c0; font-size: 40px; }");
        QCOMPARE(table.grid.colors().panel, QColor(0x010203));
        QCOMPARE(table.grid.colors().text, QColor(0xa0b0c0));
        QCOMPARE(table.area().texts().font().pixelSize(), 40);
        QVERIFY(table.area().lineHeight() > 40);
    }

    void viewAndModelMayGo()
    {
        Table table;
        const QPointer<GridViewBase> before(table.view);
        table.view->showFindBar();
        table.grid.setViewType(BandedTableView);
        QVERIFY(!before);
        QVERIFY(!table.grid.findChild<QLineEdit *>());

        GridViewBase *view = table.grid.rootView();
        auto model = std::make_unique<QStandardItemModel>();
        fill(*model, 5, 3);
        view->setModel(model.get());
        QCOMPARE(view->getColumnCount(), 3);
        view->sortByColumn(view->getColumn(1), SortUp);
        view->getColumn(0)->setGroupIndex(0);

        model.reset();

        QCOMPARE(view->getColumnCount(), 0);
        QVERIFY(!table.grid.grab().isNull());
    }

    void onlyWhatChangedIsPainted()
    {
        Table table(50000);
        QVERIFY(QTest::qWaitForWindowExposed(&table.grid));
        QApplication::processEvents();
        PaintWatch rows(table.viewport());
        PaintWatch header(table.area().header());
        PaintWatch bar(table.area().verticalScrollBar());

        emit table.model.dataChanged(table.model.index(3, 1), table.model.index(4, 2));
        QTRY_COMPARE(rows.painted, table.area().cellRect(3, 1).united(table.area().cellRect(4, 2)));

        rows.painted = QRect();
        table.area().verticalScrollBar()->setValue(24);
        QTRY_COMPARE(rows.painted, QRect(0, table.viewport()->height() - 24, table.viewport()->width(), 24));
        QVERIFY(header.painted.isEmpty());

        // The handle stands where it stood until many rows have gone by, and at the end it stands elsewhere.
        bar.painted = QRect();
        table.area().verticalScrollBar()->setValue(72);
        QApplication::processEvents();
        QVERIFY(bar.painted.isEmpty());
        table.area().verticalScrollBar()->setValue(600000);
        QTRY_VERIFY(!bar.painted.isEmpty());

        table.view->getColumn(2)->setWidth(120);
        QTRY_VERIFY(!header.painted.isEmpty());
        QCOMPARE(header.painted.left(), 200);
    }
};

SUBJECT_TEST_MAIN(GridViewTest)
#include "tst_gridview.moc"
