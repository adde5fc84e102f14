#include "celltext.h"
#include "gridfixture.h"

#include <subjecttest.h>

#include <QHelpEvent>
#include <QToolTip>

class GridHeaderTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void bandsNestOverTheirColumns();
    void bandWithoutCaptionGivesItsRoomToTheColumn();
    void hiddenLeafLeavesItsBandShown();
    void hiddenBandHidesWhatIsBelow();
    void frozenColumnsKeepTheirPartOfTheBand();
    void bandCannotComeToStandUnderItself();
    void dragOfALeafEdgeResizesThatColumn();
    void dragOfABandEdgeSharesTheWidth();
    void doubleClickFitsTheVisibleRowsOnly();
    void moveLeavesEveryBandInOnePiece();
    void dragMovesColumnsAndBands();
    void elidedCaptionKeepsItsUnit_data();
    void elidedCaptionKeepsItsUnit();
    void clickGoesThroughThreeSortStates();
    void tooManyFixedColumnsStillScroll();
    void captionTooLongShowsAToolTip();
    void widthChangeRepaintsNothingToTheLeft();

private:
    struct Banded
    {
        explicit Banded(int columns = 5);
        GridTableBand *band(const QString &caption, const QVector<int> &columns,
                            GridTableBand *parent = nullptr);
        GridArea &area() { return *view->area(); }
        QPoint rightEdge(const GridColumnBase *item);

        QStandardItemModel model;
        Grid grid;
        GridBandedTableView *view;
    };
};

GridHeaderTest::Banded::Banded(int columns)
{
    fill(model, 50, columns);
    grid.setViewType(BandedTableView);
    view = static_cast<GridBandedTableView *>(grid.rootView());
    view->setModel(&model);
    for (int i = 0; i < columns; ++i)
        view->getColumn(i)->setWidth(100);
    grid.resize(900, 400);
    grid.show();
}

GridTableBand *GridHeaderTest::Banded::band(const QString &caption, const QVector<int> &columns,
                                            GridTableBand *parent)
{
    GridTableBand *made = view->addBand(caption);
    if (parent)
        made->setBandIndex(parent->index());
    for (int column : columns)
        static_cast<GridBandedTableColumn *>(view->getColumn(column))->setBandIndex(made->index());
    return made;
}

QPoint GridHeaderTest::Banded::rightEdge(const GridColumnBase *item)
{
    for (const HeaderCell &cell : area().captions().cells())
        if (cell.item == item) {
            const QRect rect = area().header()->cellRect(cell);
            return QPoint(rect.right(), rect.center().y());
        }
    return QPoint();
}

void GridHeaderTest::bandsNestOverTheirColumns()
{
    Banded banded;

    GridTableBand *year = banded.band("2024", {});
    GridTableBand *half = banded.band("half", {1, 2}, year);
    banded.band("full", {3}, year);

    QCOMPARE(captionsOf(banded.area()),
             QStringList({"c0 0+3 0-0", "2024 0+1 1-3", "half 1+1 1-2", "c1 2+1 1-1", "c2 2+1 2-2",
                          "full 1+1 3-3", "c3 2+1 3-3", "c4 0+3 4-4"}));
    QVERIFY(half->isDescendant(year) && !year->isDescendant(half) && !year->isDescendant(year));
    QVERIFY(half->isBottomBand() && !year->isBottomBand());
    QCOMPARE(year->width(), 300);
    QCOMPARE(banded.view->headerPath(banded.view->getColumn(2)), QStringList({"2024", "half", "c2"}));
}

void GridHeaderTest::bandWithoutCaptionGivesItsRoomToTheColumn()
{
    Banded banded(3);

    banded.band("", {0});
    banded.band("pair", {1, 2});

    QCOMPARE(captionsOf(banded.area()),
             QStringList({"c0 0+2 0-0", "pair 0+1 1-2", "c1 1+1 1-1", "c2 1+1 2-2"}));
}

void GridHeaderTest::hiddenLeafLeavesItsBandShown()
{
    Banded banded(3);
    GridTableBand *band = banded.band("band", {0, 1});

    banded.view->getColumn(0)->setVisible(false);
    QCOMPARE(captionsOf(banded.area()), QStringList({"band 0+1 0-0", "c1 1+1 0-0", "c2 0+2 1-1"}));

    banded.view->getColumn(1)->setVisible(false);
    QCOMPARE(captionsOf(banded.area()), QStringList({"c2 0+1 0-0"}));
    QVERIFY(band->isVisible());
}

void GridHeaderTest::hiddenBandHidesWhatIsBelow()
{
    Banded banded(3);
    GridTableBand *outer = banded.band("outer", {0});
    banded.band("inner", {1}, outer);

    outer->setVisible(false);
    QCOMPARE(shownCaptions(*banded.view), QStringList({"c2"}));
    QVERIFY(banded.view->getColumn(1)->isVisible());

    outer->setVisible(true);
    QCOMPARE(shownCaptions(*banded.view), QStringList({"c0", "c1", "c2"}));
}

void GridHeaderTest::frozenColumnsKeepTheirPartOfTheBand()
{
    Banded banded(20);
    banded.band("band", {0, 1, 2});

    banded.view->getColumn(0)->setFixedKind(FixedLeft);
    banded.view->getColumn(4)->setFixedKind(FixedLeft);

    QCOMPARE(shownCaptions(*banded.view).mid(0, 4), QStringList({"c0", "c4", "c1", "c2"}));
    QCOMPARE(captionsOf(banded.area()).mid(0, 6), QStringList({"band 0+1 0-0", "c0 1+1 0-0", "c4 0+2 1-1",
                                                               "band 0+1 2-3", "c1 1+1 2-2", "c2 1+1 3-3"}));
    QVERIFY(banded.area().columns().at(1).strongRight);

    banded.area().horizontalScrollBar()->setValue(150);
    QCOMPARE(banded.area().cellRect(0, 0).left(), 0);
    QCOMPARE(banded.area().cellRect(0, 2).left(), 50);
    // Under the pointer lies the fixed column, not what is scrolled below it.
    QCOMPARE(banded.area().indexAt(QPoint(120, 5)).column(), 4);
    QCOMPARE(banded.area().indexAt(QPoint(260, 5)).column(), 3);
}

void GridHeaderTest::bandCannotComeToStandUnderItself()
{
    Banded banded;
    GridTableBand *outer = banded.band("outer", {});
    GridTableBand *inner = banded.band("inner", {0}, outer);

    outer->setBandIndex(inner->index());
    inner->setBandIndex(inner->index());

    QCOMPARE(outer->parentBand(), nullptr);
    QCOMPARE(inner->parentBand(), outer);
}

void GridHeaderTest::dragOfALeafEdgeResizesThatColumn()
{
    Banded banded;
    GridColumn *column = banded.view->getColumn(1);
    const QPoint edge = banded.rightEdge(column);

    drag(banded.area().header(), edge, edge + QPoint(40, 0));

    QCOMPARE(column->width(), 140);
    QCOMPARE(banded.area().cellRect(0, 2).left(), 240);
    QCOMPARE(banded.view->sortColumn(), nullptr);
}

void GridHeaderTest::dragOfABandEdgeSharesTheWidth()
{
    Banded banded;
    GridTableBand *band = banded.band("band", {0, 1, 2});
    banded.view->getColumn(0)->setWidth(200);
    const QPoint edge = banded.rightEdge(band);

    drag(banded.area().header(), edge, edge + QPoint(100, 0));

    QCOMPARE(band->width(), 500);
    QCOMPARE(banded.view->getColumn(0)->width(), 250);
    QCOMPARE(banded.view->getColumn(2)->width(), 125);
}

void GridHeaderTest::doubleClickFitsTheVisibleRowsOnly()
{
    Banded banded;
    GridColumn *column = banded.view->getColumn(0);
    banded.model.item(49, 0)->setText(QString(80, 'W'));
    const QPoint edge = banded.rightEdge(column);

    QTest::mouseDClick(banded.area().header(), Qt::LeftButton, {}, edge);
    const int narrow = column->width();
    QVERIFY(narrow < 100);

    banded.area().verticalScrollBar()->setValue(banded.area().verticalScrollBar()->maximum());
    QTest::mouseDClick(banded.area().header(), Qt::LeftButton, {}, banded.rightEdge(column));
    QVERIFY(column->width() > narrow * 4);
}

void GridHeaderTest::moveLeavesEveryBandInOnePiece()
{
    Banded banded(6);
    GridTableBand *year = banded.band("year", {});
    banded.band("full", {0, 1}, year);
    banded.band("half", {2, 3}, year);
    GridViewBase &view = *banded.view;
    const auto move = [&](const QVector<int> &columns, int before) {
        QVector<GridColumn *> moved;
        for (int column : columns)
            moved.append(view.getColumn(column));
        view.moveColumns(moved, view.getColumn(before));
        return shownCaptions(view).join(' ');
    };

    QCOMPARE(move({0}, 2), QString("c1 c0 c2 c3 c4 c5"));
    QCOMPARE(move({1}, 3), QString("c1 c0 c2 c3 c4 c5")); // out of its band
    QCOMPARE(move({5}, 3), QString("c1 c0 c2 c3 c4 c5")); // into a foreign one
    QCOMPARE(move({2, 3}, 1), QString("c2 c3 c1 c0 c4 c5"));
    QCOMPARE(move({1, 0}, 5), QString("c2 c3 c1 c0 c4 c5")); // out of the year
    QCOMPARE(move({5}, 2), QString("c5 c2 c3 c1 c0 c4"));
    QCOMPARE(move({2, 3, 1, 0}, -1), QString("c5 c4 c2 c3 c1 c0"));

    view.getColumn(2)->setFixedKind(FixedLeft);
    QCOMPARE(move({2}, 0), QString("c2 c5 c4 c3 c1 c0"));
    QCOMPARE(move({4}, 5), QString("c2 c4 c5 c3 c1 c0"));
}

void GridHeaderTest::dragMovesColumnsAndBands()
{
    Banded banded;
    GridTableBand *band = banded.band("band", {1, 2});
    GridViewBase &view = *banded.view;
    const auto dragTo = [&](const GridColumnBase *item, int x) {
        const QPoint from = banded.rightEdge(item) - QPoint(30, 0);
        drag(banded.area().header(), from, QPoint(x, from.y()));
        return shownCaptions(view).join(' ');
    };

    QCOMPARE(dragTo(view.getColumn(2), 120), QString("c0 c2 c1 c3 c4"));
    QCOMPARE(dragTo(band, 480), QString("c0 c3 c4 c2 c1"));
    // Over a foreign band a column goes beside the whole of it.
    QCOMPARE(dragTo(view.getColumn(0), 460), QString("c3 c4 c2 c1 c0"));
    QCOMPARE(view.sortColumn(), nullptr);
}

void GridHeaderTest::elidedCaptionKeepsItsUnit_data()
{
    QTest::addColumn<QString>("unit");
    testRow("revenue of the year(USD)", "(USD)");
    testRow("revenue of the year ( % )", " ( % )");
    testRow("(no) revenue of the year", "");
}

void GridHeaderTest::elidedCaptionKeepsItsUnit()
{
    QFETCH(QString, unit);
    TextCache texts{QFont()};
    const QString caption = QTest::currentDataTag();
    const int room = texts.whole("revenue " + unit).width;

    QCOMPARE(unitOf(caption), unit);
    QVERIFY(texts.fitting(caption, room, unit)
                .text.text()
                .endsWith(unit.isEmpty() ? QString(QChar(0x2026)) : unit));
    QVERIFY(texts.fitting(caption, room, unit).width <= room);
}

void GridHeaderTest::clickGoesThroughThreeSortStates()
{
    Banded banded;
    GridViewBase &view = *banded.view;
    const auto click = [&](int column) {
        QTest::mouseClick(banded.area().header(), Qt::LeftButton, {},
                          banded.rightEdge(view.getColumn(column)) - QPoint(50, 0));
        return view.sortState();
    };

    QCOMPARE(click(0), int(SortUp));
    QCOMPARE(click(0), int(SortDown));
    QCOMPARE(view.visibleRows().first(), 9); // "r9c0" is the last text by code point
    QCOMPARE(click(0), int(AsDelivered));
    QCOMPARE(view.visibleRows().first(), 0);

    view.getColumn(1)->setSortEnabled(false);
    QCOMPARE(click(1), int(AsDelivered));
}

void GridHeaderTest::tooManyFixedColumnsStillScroll()
{
    Banded banded(30);
    for (int i = 0; i < 12; ++i)
        banded.view->getColumn(i)->setFixedKind(FixedLeft);

    banded.area().horizontalScrollBar()->setValue(500);
    QCOMPARE(banded.area().cellRect(0, 0).left(), -500);

    banded.grid.resize(1600, 400);
    banded.area().horizontalScrollBar()->setValue(500);
    QCOMPARE(banded.area().cellRect(0, 0).left(), 0);
}

void GridHeaderTest::captionTooLongShowsAToolTip()
{
    allowWarnings("This plugin does not support raise");
    Banded banded;
    banded.view->getColumn(0)->setCaption("a caption that no hundred pixels can hold");
    const QPoint middle = banded.rightEdge(banded.view->getColumn(0)) - QPoint(50, 0);
    banded.area().header()->grab();

    QHelpEvent over(QEvent::ToolTip, middle, banded.area().header()->mapToGlobal(middle));
    QApplication::sendEvent(banded.area().header(), &over);
    QCOMPARE(QToolTip::text(), banded.view->getColumn(0)->caption());

    QHelpEvent beside(QEvent::ToolTip, middle + QPoint(100, 0), QPoint());
    QApplication::sendEvent(banded.area().header(), &beside);
    QTRY_VERIFY(QToolTip::text().isEmpty() || !QToolTip::isVisible());
}

void GridHeaderTest::widthChangeRepaintsNothingToTheLeft()
{
    Banded banded;
    QVERIFY(QTest::qWaitForWindowExposed(&banded.grid));
    QApplication::processEvents();
    PaintWatch header(banded.area().header());

    banded.view->getColumn(2)->setWidth(120);

    QTRY_VERIFY(!header.painted.isEmpty());
    QCOMPARE(header.painted.left(), 200);
}

SUBJECT_TEST_MAIN(GridHeaderTest)
#include "tst_gridheader.moc"
