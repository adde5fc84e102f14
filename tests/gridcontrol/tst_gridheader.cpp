#include "celltext.h"
#include "gridfixture.h"

#include <subjecttest.h>

#include <QHelpEvent>
#include <QToolTip>

class GridHeaderTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void bandsStandOverTheirColumns_data()
    {
        QTest::addColumn<int>("columns");
        QTest::addColumn<QString>("bands"); // "caption<owner:columns"
        QTest::addColumn<QString>("hidden");
        QTest::addColumn<QVector<int>>("fixed");
        QTest::addColumn<QString>("captions"); // "caption level+levels slots"
        const QVector<int> none;
        testRow("nested", 5, "2024<: half<2024:1,2 full<2024:3", "", none,
                "c0 0+3 0-0, 2024 0+1 1-3, half 1+1 1-2, c1 2+1 1-1, c2 2+1 2-2, full 1+1 3-3, c3 2+1 3-3, "
                "c4 0+3 4-4");
        testRow("band without caption gives its room to the column", 3, "<:0 pair<:1,2", "", none,
                "c0 0+2 0-0, pair 0+1 1-2, c1 1+1 1-1, c2 1+1 2-2");
        testRow("hidden leaf leaves its band", 3, "band<:0,1", "c0", none,
                "band 0+1 0-0, c1 1+1 0-0, c2 0+2 1-1");
        testRow("band without leaves takes no room", 3, "band<:0,1", "c0 c1", none, "c2 0+1 0-0");
        testRow("hidden band hides what is below", 3, "outer<:0 inner<outer:1", "outer", none, "c2 0+1 0-0");
        testRow("frozen columns keep their part of the band", 6, "band<:0,1,2", "", QVector<int>{0, 4},
                "band 0+1 0-0, c0 1+1 0-0, c4 0+2 1-1, band 0+1 2-3, c1 1+1 2-2, c2 1+1 3-3, c3 0+2 4-4, "
                "c5 0+2 5-5");
    }

    void bandsStandOverTheirColumns()
    {
        QFETCH(int, columns);
        QFETCH(QString, bands);
        QFETCH(QString, hidden);
        QFETCH(QVector<int>, fixed);
        Banded banded(columns);
        QMap<QString, GridColumnBase *> items;
        for (int i = 0; i < columns; ++i)
            items.insert(QString("c%1").arg(i), banded.view->getColumn(i));
        for (const QString &text : bands.split(' ')) {
            QVector<int> below;
            for (const QString &column : text.section(':', 1).split(',', Qt::SkipEmptyParts))
                below.append(column.toInt());
            const QString caption = text.section('<', 0, 0);
            const QString owner = text.section('<', 1).section(':', 0, 0);
            items.insert(
                caption,
                banded.band(caption, below,
                            owner.isEmpty() ? nullptr : qobject_cast<GridTableBand *>(items.value(owner))));
        }

        for (const QString &item : hidden.split(' ', Qt::SkipEmptyParts))
            items.value(item)->setVisible(false);
        for (const int column : fixed)
            banded.view->getColumn(column)->setFixedKind(FixedLeft);

        QStringList all;
        for (const HeaderCell &cell : banded.area().captions().cells())
            all.append(QString("%1 %2+%3 %4-%5")
                           .arg(cell.item->caption())
                           .arg(cell.level)
                           .arg(cell.levels)
                           .arg(cell.firstSlot)
                           .arg(cell.lastSlot));
        QTEST(all.join(", "), "captions");
    }

    void bandsKnowWhereTheyStand()
    {
        Banded banded;
        GridTableBand *outer = banded.band("outer", {});
        GridTableBand *inner = banded.band("inner", {0, 1}, outer);

        outer->setBandIndex(inner->index());
        inner->setBandIndex(inner->index());

        QCOMPARE(outer->parentBand(), nullptr);
        QCOMPARE(inner->parentBand(), outer);
        QVERIFY(inner->isDescendant(outer) && !outer->isDescendant(inner) && !outer->isDescendant(outer));
        QVERIFY(inner->isBottomBand() && !outer->isBottomBand());
        QCOMPARE(outer->width(), 200);
        QCOMPARE(banded.view->headerPath(banded.view->getColumn(1)).join('/'), QString("outer/inner/c1"));
    }

    void fixedColumnsStayInSight()
    {
        Banded banded(30);
        GridArea &area = banded.area();
        const auto fixFirst = [&](int count) {
            for (int i = 0; i < 30; ++i)
                banded.view->getColumn(i)->setFixedKind(i < count ? FixedLeft : NotFixed);
        };
        fixFirst(2);
        QVERIFY(area.columns().at(1).strongRight);
        area.horizontalScrollBar()->setValue(150);
        QCOMPARE(area.cellRect(0, 0).left(), 0);
        QCOMPARE(area.cellRect(0, 2).left(), 50);
        // Under the pointer lies the fixed column, not what is scrolled below it.
        QCOMPARE(area.indexAt(QPoint(120, 5)).column(), 1);
        QCOMPARE(area.indexAt(QPoint(260, 5)).column(), 4);

        // Too many to leave room for the others scroll with them.
        fixFirst(12);
        area.horizontalScrollBar()->setValue(500);
        QCOMPARE(area.cellRect(0, 0).left(), -500);
        banded.grid.resize(1600, 400);
        area.horizontalScrollBar()->setValue(500);
        QCOMPARE(area.cellRect(0, 0).left(), 0);
    }

    void edgesAreDraggedAndDoubleClicked()
    {
        Banded banded;
        GridTableBand *band = banded.band("band", {0, 1, 2});
        const auto pull = [&](const GridColumnBase *item, int pixels) {
            const QPoint edge = banded.rightEdge(item);
            drag(banded.area().header(), edge, edge + QPoint(pixels, 0));
            QStringList widths;
            for (int i = 0; i < 5; ++i)
                widths.append(QString::number(banded.view->getColumn(i)->width()));
            return widths.join(' ');
        };

        QCOMPARE(pull(banded.view->getColumn(0), 100), QString("200 100 100 100 100"));
        QCOMPARE(pull(band, 100), QString("250 125 125 100 100"));
        QCOMPARE(banded.area().cellRect(0, 3).left(), 500);
        QCOMPARE(banded.view->sortColumn(), nullptr);

        // A double click fits the rows that are on the screen.
        GridColumn *column = banded.view->getColumn(4);
        const auto fitted = [&] {
            QTest::mouseDClick(banded.area().header(), Qt::LeftButton, {}, banded.rightEdge(column));
            return column->width();
        };
        banded.model.item(49, 4)->setText(QString(80, 'W'));
        const int narrow = fitted();
        QVERIFY(narrow < 100);
        banded.area().verticalScrollBar()->setValue(banded.area().verticalScrollBar()->maximum());
        QVERIFY(fitted() > narrow * 4);
    }

    void moveLeavesEveryBandInOnePiece()
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
            return shownCaptions(view);
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

    void dragMovesColumnsAndBands()
    {
        Banded banded;
        GridTableBand *band = banded.band("band", {1, 2});
        GridViewBase &view = *banded.view;
        const auto dragTo = [&](const GridColumnBase *item, int x) {
            const QPoint from = banded.rightEdge(item) - QPoint(30, 0);
            drag(banded.area().header(), from, QPoint(x, from.y()));
            return shownCaptions(view);
        };

        QCOMPARE(dragTo(view.getColumn(2), 120), QString("c0 c2 c1 c3 c4"));
        QCOMPARE(dragTo(band, 480), QString("c0 c3 c4 c2 c1"));
        // Over a foreign band a column goes beside the whole of it.
        QCOMPARE(dragTo(view.getColumn(0), 460), QString("c3 c4 c2 c1 c0"));
        QCOMPARE(view.sortColumn(), nullptr);
    }

    void elidedCaptionKeepsItsUnit()
    {
        TextCache texts{QFont()};
        const QList<QPair<QString, QString>> captions = {{"revenue of the year(USD)", "(USD)"},
                                                         {"revenue of the year ( % )", " ( % )"},
                                                         {"(no) revenue of the year", ""}};
        for (const auto &[caption, unit] : captions) {
            QCOMPARE(unitOf(caption), unit);
            const int room = texts.whole("revenue " + unit).width;
            const TextCache::Entry fitting = texts.fitting(caption, room, unit);
            QVERIFY(fitting.text.text().endsWith(unit.isEmpty() ? QString(QChar(0x2026)) : unit));
            QVERIFY(fitting.width <= room);
        }
    }

    void clickGoesThroughThreeSortStates()
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

    void captionTooLongShowsAToolTip()
    {
        allowWarnings("This plugin does not support raise");
        Banded banded;
        banded.view->getColumn(0)->setCaption("a caption that no hundred pixels can hold");
        const auto hover = [&](int x) {
            const QPoint point = banded.rightEdge(banded.view->getColumn(0)) + QPoint(x, 0);
            QHelpEvent over(QEvent::ToolTip, point, banded.area().header()->mapToGlobal(point));
            QApplication::sendEvent(banded.area().header(), &over);
        };

        hover(-50);
        QCOMPARE(QToolTip::text(), banded.view->getColumn(0)->caption());
        hover(50);
        QTRY_VERIFY(QToolTip::text().isEmpty() || !QToolTip::isVisible());
    }
};

SUBJECT_TEST_MAIN(GridHeaderTest)
#include "tst_gridheader.moc"
