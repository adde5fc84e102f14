#include "gridfixture.h"

#include <subjecttest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>

class GridViewTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void rowsAreHandedOutAsTheModelCountsThem();
    void viewTakesTheFocusSilently();
    void keysCrossTheFrozenEdge();
    void arrowsOpenAndCloseGroups();
    void clickOnAGroupRowTogglesIt();
    void collapseMovesTheFocusToTheGroup();
    void linkFollowsClickAndEnter();
    void linkTextGivesCaptionAndAnchor_data();
    void linkTextGivesCaptionAndAnchor();
    void buttonFollowsClickAndEnter();
    void cellRoleWinsOverTheColumnsAlignment();
    void selectionFollowsThePolicy();
    void cellBlockCrossesTheFrozenEdge();
    void copyWritesNumbersAndHeaderLevels();
    void findBarFindsAndFilters();
    void groupedColumnLeavesTheTable();
    void otherColumnsOfTheModelKeepTheSettings();
    void styleSheetColoursAreDrawn();
    void newViewReplacesTheOldOne();
    void modelMayDieFirst();

private:
    struct Table
    {
        explicit Table(int rows = 20, int columns = 4);
        GridArea &area() { return *view->area(); }
        QWidget *viewport() { return area().viewport(); }
        QPoint middle(int line, int slot) { return area().cellRect(line, slot).center(); }
        void makeLinks(int column);
        void focus();

        QStandardItemModel model;
        Grid grid;
        GridViewBase *view;
    };
};

GridViewTest::Table::Table(int rows, int columns)
{
    fill(model, rows, columns);
    view = grid.rootView();
    view->setModel(&model);
    for (int i = 0; i < columns; ++i)
        view->getColumn(i)->setWidth(100);
    grid.resize(500, 300);
    grid.show();
}

void GridViewTest::Table::makeLinks(int column)
{
    view->getColumn(column)->setEditorType(StringEditor);
    static_cast<GridStringEditorRepository *>(view->getColumn(column)->editorRepository())->setHLink(true);
}

void GridViewTest::Table::focus()
{
    grid.activateWindow();
    area().setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&grid));
}

void GridViewTest::rowsAreHandedOutAsTheModelCountsThem()
{
    Table table;
    QSignalSpy focused(table.view, &GridViewBase::focusRowChanged);
    table.view->sortByColumn(table.view->getColumn(0), SortDown); // r9, r8, ..., r2, r19, ...

    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.middle(0, 1));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.middle(0, 2));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.middle(1, 2));

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

    table.focus();
    QTRY_VERIFY(table.area().currentIndex().isValid());
    QCOMPARE(focused.size(), 0);

    // The row that got the focus that way is news when the user clicks it.
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.middle(0, 0));
    QCOMPARE(focused.size(), 1);
    QCOMPARE(focused.first(), QVariantList({-1, 0}));
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

    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, QPoint(450, 12));

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

void GridViewTest::linkFollowsClickAndEnter()
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
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, onText);
    QCOMPARE(followed, QStringList({"0r0c1"}));

    // Beside the text of the link the click means the row, not the link.
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.area().cellRect(0, 1).topRight() + QPoint(-5, 12));
    drag(table.viewport(), onText, onText + QPoint(0, 48));
    QCOMPARE(followed.size(), 1);

    table.area().setCurrentCell(1, 1, QItemSelectionModel::ClearAndSelect);
    QTest::keyClick(&table.area(), Qt::Key_Return);
    QCOMPARE(followed.last(), QString("1http://therehttp://there"));
}

void GridViewTest::linkTextGivesCaptionAndAnchor_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("anchor");

    QTest::newRow("plain text") << "plain text"
                                << "";
    QTest::newRow("view://a?b=1") << "view://a?b=1"
                                  << "view://a?b=1";
    QTest::newRow("<a href='x:y'>cap</a>") << "cap"
                                           << "x:y";
    QTest::newRow("<A class=\"k\" HREF=\"u\">c</A>") << "c"
                                                     << "u";
    QTest::newRow("<a href=''>c</a>") << "c"
                                      << "";
    QTest::newRow("<a href='cut") << "<a href='cut"
                                  << "";
}

void GridViewTest::linkTextGivesCaptionAndAnchor()
{
    QFETCH(QString, caption);
    QFETCH(QString, anchor);
    Table table(1, 1);
    table.makeLinks(0);
    table.model.item(0, 0)->setText(QTest::currentDataTag());
    QString followed("none");
    connect(table.view, &GridViewBase::editorLinkActivated, &table.grid,
            [&](EditorLinkEventArgs *args) { followed = args->anchor(); });

    QTest::keyClick(&table.area(), Qt::Key_Down);
    QTest::keyClick(&table.area(), Qt::Key_Return);

    QCOMPARE(table.area().textOf(0, 0), caption);
    QCOMPARE(followed, anchor);
}

void GridViewTest::buttonFollowsClickAndEnter()
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

    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, button(1));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, button(3));
    table.area().setCurrentCell(2, 2, QItemSelectionModel::ClearAndSelect);
    QTest::keyClick(&table.area(), Qt::Key_Enter);

    QCOMPARE(pressed, QStringList({"r1c2", "r2c2"}));
}

void GridViewTest::cellRoleWinsOverTheColumnsAlignment()
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

void GridViewTest::selectionFollowsThePolicy()
{
    Table table;
    const auto clickTwo = [&] {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.middle(1, 0));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ShiftModifier, table.middle(3, 1));
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

void GridViewTest::cellBlockCrossesTheFrozenEdge()
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

void GridViewTest::copyWritesNumbersAndHeaderLevels()
{
    QLocale::setDefault(QLocale(QLocale::English));
    QStandardItemModel model;
    fill(model, 2, 3);
    model.item(0, 0)->setText("000001");
    model.item(0, 1)->setText("1,234.50");
    model.item(0, 1)->setData(1234.5, Qt::UserRole + 1);
    model.item(0, 2)->setText("a\tb<c>");
    Grid grid;
    grid.setViewType(BandedTableView);
    auto *view = static_cast<GridBandedTableView *>(grid.rootView());
    view->setModel(&model);
    const int band = view->addBand("band")->index();
    for (int column : {1, 2})
        static_cast<GridBandedTableColumn *>(view->getColumn(column))->setBandIndex(band);
    view->getColumn(1)->dataBinding()->setSortRole(Qt::UserRole + 1);
    QCOMPARE(view->copySelection(true), nullptr);

    view->setFocusRow(0);
    const std::unique_ptr<QMimeData> data(view->copySelection(true));

    QCOMPARE(data->text(), QString("c0\tband\t\n\tc1\tc2\n000001\t1234.50\ta b<c>\n"));
    QVERIFY(data->html().contains(
        "<th colspan=\"1\" rowspan=\"2\">c0</th><th colspan=\"2\" rowspan=\"1\">band</th>"));
    QVERIFY(data->html().contains("mso-number-format:'\\@'\">000001</td><td align=\"right\">1234.50</td>"));
    QVERIFY(data->html().contains("b&lt;c&gt;"));
    QLocale::setDefault(QLocale::c());
}

void GridViewTest::findBarFindsAndFilters()
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

void GridViewTest::styleSheetColoursAreDrawn()
{
    Table table;
    QCOMPARE(table.grid.colors().alternate, QColor(0xFAFBFD));

    table.grid.setStyleSheet(
        "Qtitan--Grid { qproperty-alternateColor: #102030; qproperty-selectionColor: #ff00ff; }");
    table.view->setFocusRow(2);

    const QImage shot = table.viewport()->grab().toImage();
    QCOMPARE(shot.pixelColor(98, 24 + 2), QColor(0x102030));
    QCOMPARE(shot.pixelColor(98, 48 + 2), QColor(0xff00ff));
    QCOMPARE(shot.pixelColor(98, 2), table.grid.palette().color(QPalette::Base));

    table.grid.setStyleSheet(
        "Qtitan--Grid { background: #010203; color: #a0b0c0; qproperty-alternateColor: #203040; }");
    QCOMPARE(table.grid.colors().panel, QColor(0x010203));
    QCOMPARE(table.grid.colors().text, QColor(0xa0b0c0));
    table.grid.setStyleSheet(table.grid.styleSheet() + " Qtitan--Grid { font-size: 40px; }");
    QCOMPARE(table.area().texts().font().pixelSize(), 40);
    QVERIFY(table.area().lineHeight() > 40);
    table.grid.setStyleSheet(table.grid.styleSheet() + " Qtitan--Grid { font-size: 12px; }");
    QCOMPARE(table.viewport()->grab().toImage().pixelColor(98, 24 + 2), QColor(0x203040));
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

SUBJECT_TEST_MAIN(GridViewTest)
#include "tst_gridview.moc"
