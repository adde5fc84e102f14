#include "gridfixture.h"
#include "picture.h"

#include <subjecttest.h>

#include <demoview.h>
#include <quotemodel.h>

#include <QDir>
#include <QFontInfo>

namespace {
void showBands(Grid &grid)
{
    GridViewBase *view = grid.rootView();
    view->sortByColumn(view->getColumn(QuoteModel::FirstFigure), SortDown);
    view->itemView()->horizontalScrollBar()->setValue(83);
    view->setFocusRow(view->visibleRows().at(1));
}

void showCells(Grid &grid)
{
    GridViewBase *view = grid.rootView();
    view->options().setSelectionPolicy(CellSelection);
    view->options().setGridLines(BothGridLines);
    view->area()->markText(QStringLiteral("平安"));
    drag(view->area()->viewport(), view->area()->cellRect(2, 1).center(),
         view->area()->cellRect(4, 2).center());
}

void showGroups(Grid &grid)
{
    GridViewBase *view = grid.rootView();
    view->options().setGroupsHeader(true);
    view->getColumn(QuoteModel::Board)->setGroupIndex(0);
    view->area()->toggleGroup(1);
    view->area()->setCurrentCell(0, 0, QItemSelectionModel::ClearAndSelect);
}
} // namespace

/// Compares pictures of three layouts in two skins with the ones in pictures/. With GRID_WRITE_PICTURES set
/// it writes those instead.
class GridPicturesTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Nothing of the machine's own settings: sizes in pixels, one style, letters without hints or
        // colours.
        QApplication::setStyle(QStringLiteral("Fusion"));
        QFont font(QStringLiteral("WenQuanYi Micro Hei"));
        font.setPixelSize(12);
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
        QApplication::setFont(font);
        QCOMPARE(QFontInfo(font).family(), font.family());
    }

    void layoutLooksAsBefore_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<bool>("dark");
        for (const char *layout : {"bands", "cells", "groups"}) {
            QTest::addRow("%s-light", layout) << layout << false;
            QTest::addRow("%s-dark", layout) << layout << true;
        }
    }

    void layoutLooksAsBefore()
    {
        QFETCH(QString, layout);
        QFETCH(bool, dark);
        const QString name = QStringLiteral("/%1.png").arg(QTest::currentDataTag());
        const QString wanted = QStringLiteral(PICTURES) + name;

        const QImage found = picture(layout, dark);
        if (qEnvironmentVariableIsSet("GRID_WRITE_PICTURES"))
            QVERIFY(coarse(found).save(wanted));

        const QString off = difference(QImage(wanted), found);
        const QString kept = QStringLiteral(PROJECT_BINARY_DIR "/tests/pictures");
        if (!off.isEmpty() && QDir().mkpath(kept))
            found.save(kept + name);
        QVERIFY2(off.isEmpty(), qPrintable(off + " see " + kept + name));
    }

    void faultIsSeen()
    {
        const QImage sound = picture("bands", false);
        QCOMPARE(difference(sound, sound), QString());
        // No edge between bands, other rows, no lines, other links, another focus, no hover.
        for (const char *fault : {"strongLineColor: #EEF2F7", "alternateColor: #FFFFFF", "lineColor: #FFFFFF",
                                  "linkColor: #1F2733", "focusColor: #D8E8FF", "hoverColor: #FAFBFD"}) {
            const QString sheet = QString(" Qtitan--Grid { qproperty-%1; }").arg(fault);
            QVERIFY2(!difference(sound, picture("bands", false, sheet)).isEmpty(), fault);
        }
    }

private:
    static QImage picture(const QString &layout, bool dark, const QString &fault = QString())
    {
        QuoteModel model(40, 16);
        model.setDark(dark);
        Grid grid;
        grid.setStyleSheet(QString::fromLatin1(dark ? darkSheet() : lightSheet()) + fault);
        layout == "cells" ? showPlain(grid, model) : showBanded(grid, model);
        QAbstractItemView *items = grid.rootView()->itemView();
        items->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        items->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        grid.resize(480, 250);
        grid.show();
        grid.activateWindow();
        items->setFocus();
        [&] { QVERIFY(QTest::qWaitForWindowActive(&grid)); }();
        layout == "bands" ? showBands(grid) : layout == "cells" ? showCells(grid) : showGroups(grid);
        movePointer(items->viewport(), QPoint(90, 5 * 24 + 12));
        QImage shot(grid.size(), QImage::Format_RGB32);
        grid.render(&shot);
        return shot;
    }
};

SUBJECT_TEST_MAIN(GridPicturesTest)
#include "tst_gridpictures.moc"
