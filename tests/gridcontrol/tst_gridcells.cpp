#include "celltext.h"
#include "gridfixture.h"
#include "gridmenu.h"

#include <subjecttest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

class GridCellsTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void linkFollowsClickAndEnter()
    {
        Table table;
        table.makeLinks(1);
        QStringList followed;
        connect(table.view, &GridViewBase::editorLinkActivated, &table.grid, [&](EditorLinkEventArgs *args) {
            QVariant text;
            QVERIFY(args->dataBinding()->getValue(args->row(), Qt::DisplayRole, text));
            followed.append(QString::number(args->row().rowIndex()) + text.toString() + args->anchor());
        });
        table.model.item(1, 1)->setText("http://there");
        const QPoint onText = table.area().cellRect(0, 1).topLeft() + QPoint(10, 12);

        movePointer(table.viewport(), onText);
        QCOMPARE(table.viewport()->cursor().shape(), Qt::PointingHandCursor);
        table.click(onText);
        QCOMPARE(followed, QStringList({"0r0c1"}));

        // Beside the text of the link the click means the row, not the link.
        table.click(table.area().cellRect(0, 1).topRight() + QPoint(-5, 12));
        drag(table.viewport(), onText, onText + QPoint(0, 48));
        QCOMPARE(followed.size(), 1);

        table.area().setCurrentCell(1, 1, QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(&table.area(), Qt::Key_Return);
        QCOMPARE(followed.last(), QString("1http://therehttp://there"));
    }

    void linkTextGivesCaptionAndAnchor()
    {
        const QList<QStringList> links = {
            {"plain text", "plain text", ""},        {"view://a?b=1", "view://a?b=1", "view://a?b=1"},
            {"<a href='x:y'>cap</a>", "cap", "x:y"}, {"<A class=\"k\" HREF=\"u\">c</A>", "c", "u"},
            {"<a href=''>c</a>", "c", ""},           {"<a href='cut", "<a href='cut", ""}};
        for (const QStringList &link : links) {
            const LinkText read = linkText(link.at(0));
            QCOMPARE(QStringList({link.at(0), read.caption, read.anchor}), link);
        }
    }

    void buttonFollowsClickAndEnter()
    {
        Table table;
        GridColumn *column = table.view->getColumn(2);
        column->addButton(EllipsisButtonIcon, ButtonRight, ShowButtonAlways);
        table.model.item(3, 2)->setText(QString());
        QStringList pressed;
        connect(column, &GridColumn::buttonClicked, &table.grid, [&](CellButtonClickEventArgs *args) {
            pressed.append(args->row().cell(args->column()->index()).modelIndex().data().toString());
        });
        const auto button = [&](int line) {
            return table.area().buttonRect(table.area().cellRect(line, 2), *column, 0).center();
        };

        table.click(button(1));
        table.click(button(3));
        table.area().setCurrentCell(2, 2, QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(&table.area(), Qt::Key_Enter);

        QCOMPARE(pressed, QStringList({"r1c2", "r2c2"}));
    }

    void cellRoleWinsOverTheColumnsAlignment()
    {
        Table table(1, 3);
        table.view->getColumn(0)->setTextAlignment(Qt::AlignCenter);
        table.view->getColumn(1)->setTextAlignment(Qt::AlignCenter);
        table.model.item(0, 1)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        table.model.item(0, 2)->setData(7, Qt::DisplayRole);

        QVERIFY(table.view->getColumn(0)->cellAlignment() & Qt::AlignHCenter);
        QVERIFY(table.view->getColumn(1)->cellAlignment() & Qt::AlignRight);
        QVERIFY(table.view->getColumn(2)->cellAlignment() & Qt::AlignRight);
    }

    void selectionFollowsThePolicy()
    {
        Table table;
        const auto clickTwo = [&] {
            table.click(table.middle(1, 0));
            table.click(table.middle(3, 1), Qt::ShiftModifier);
            const int cells = table.area().selectionModel()->selection().indexes().size();
            return qMakePair(table.view->selectedRows().size(), cells);
        };

        QCOMPARE(clickTwo(), qMakePair(3, 12));
        table.view->options().setSelectionPolicy(Qtitan::CellSelection);
        QCOMPARE(clickTwo(), qMakePair(3, 6));
        table.view->options().setSelectionPolicy(Qtitan::SingleRowSelection);
        QCOMPARE(clickTwo(), qMakePair(1, 4));
        table.view->options().setSelectionPolicy(Qtitan::NoSelection);
        QCOMPARE(clickTwo(), qMakePair(0, 0));
    }

    void cellBlockCrossesTheFrozenEdge()
    {
        Table table(20, 12);
        table.view->options().setSelectionPolicy(CellSelection);
        table.view->getColumn(5)->setFixedKind(FixedLeft);
        table.area().horizontalScrollBar()->setValue(100);

        drag(table.viewport(), table.middle(1, 0), QPoint(250, table.middle(2, 0).y()));

        const std::unique_ptr<QMimeData> data(table.view->copySelection(false));
        QCOMPARE(data->text(), QString("r1c5\tr1c0\tr1c1\tr1c2\nr2c5\tr2c0\tr2c1\tr2c2\n"));

        table.area().setCurrentCell(0, 0, QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(&table.area(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&table.area(), Qt::Key_Down, Qt::ShiftModifier);
        const std::unique_ptr<QMimeData> byKeys(table.view->copySelection(false));
        QCOMPARE(byKeys->text(), QString("r0c5\tr0c0\nr1c5\tr1c0\n"));
    }

    void copyWritesNumbersAndHeaderLevels()
    {
        QLocale::setDefault(QLocale(QLocale::English));
        Banded banded(3);
        banded.model.item(0, 0)->setText("000001");
        banded.model.item(0, 1)->setText("1,234.50");
        banded.model.item(0, 1)->setData(1234.5, Qt::UserRole + 1);
        banded.model.item(0, 2)->setText("a\tb<c>");
        banded.band("band", {1, 2});
        banded.view->getColumn(1)->dataBinding()->setSortRole(Qt::UserRole + 1);
        QCOMPARE(banded.view->copySelection(true), nullptr);

        banded.view->setFocusRow(0);
        const std::unique_ptr<QMimeData> data(banded.view->copySelection(true));

        QCOMPARE(data->text(), QString("c0\tband\t\n\tc1\tc2\n000001\t1234.50\ta b<c>\n"));
        QVERIFY(data->html().contains(
            "<th colspan=\"1\" rowspan=\"2\">c0</th><th colspan=\"2\" rowspan=\"1\">band</th>"));
        QVERIFY(
            data->html().contains("mso-number-format:'\\@'\">000001</td><td align=\"right\">1234.50</td>"));
        QVERIFY(data->html().contains("b&lt;c&gt;"));
        QLocale::setDefault(QLocale::c());
    }

    void findBarFindsAndFilters()
    {
        Table table;
        table.view->showFindBar();
        auto *edit = table.grid.findChild<QLineEdit *>();

        QTest::keyClicks(edit, "R1");
        QCOMPARE(table.view->focusRow(), 1);
        QTest::keyClick(edit, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(table.view->focusRow(), 19);
        QTest::keyClicks(edit, "7c2");
        QTRY_COMPARE(table.view->focusRow(), 17);
        QCOMPARE(table.area().currentIndex().column(), 2);

        table.grid.findChild<QAbstractButton *>("gridFindFilter")->click();
        QCOMPARE(table.view->visibleRows(), QVector<int>({17}));
        QTest::keyClick(edit, Qt::Key_Escape);
        QCOMPARE(table.view->visibleRows().size(), 20);
        QVERIFY(table.area().markedText().isEmpty());
    }

    void menuOfACellReachesItsColumn()
    {
        Table table;
        table.area().setCurrentCell(0, 1, QItemSelectionModel::ClearAndSelect);
        QMenu menu;
        fillCellMenu(menu, table.area());
        const auto choose = [&](const QString &text) {
            for (QAction *action : menu.findChildren<QAction *>())
                if (action->text() == text && action->isEnabled())
                    return action->trigger();
            QFAIL(qPrintable("no " + text));
        };

        choose("降序");
        QCOMPARE(table.view->visibleRows().first(), 9);
        choose("右移");
        QCOMPARE(shownCaptions(*table.view), QString("c0 c2 c1 c3"));
        choose("隐藏此列");
        QCOMPARE(shownCaptions(*table.view), QString("c0 c2 c3"));

        table.view->options().setMainMenuDisabled(true);
        QMenu less;
        fillCellMenu(less, table.area());
        for (const QAction *action : less.findChildren<QAction *>())
            QVERIFY(action->text() != "隐藏此列");
    }
};

SUBJECT_TEST_MAIN(GridCellsTest)
#include "tst_gridcells.moc"
