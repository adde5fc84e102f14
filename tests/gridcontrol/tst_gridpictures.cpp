#include "gridfixture.h"
#include "picture.h"

#include <subjecttest.h>

#include <demoview.h>
#include <quotemodel.h>

#include <QDir>
#include <QFontInfo>

/// Compares pictures of three layouts in two skins with the ones in pictures/. With GRID_WRITE_PICTURES set
/// it writes those instead.
class GridPicturesTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void layoutLooksAsBefore_data();
    void layoutLooksAsBefore();
    void faultIsSeen_data();
    void faultIsSeen();

private:
    static QImage picture(const QString &layout, bool dark, const QString &fault = QString());
};

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

void GridPicturesTest::initTestCase()
{
    // Nothing of the machine's own settings: sizes in pixels, one style, letters without hints or colours.
    QApplication::setStyle(QStringLiteral("Fusion"));
    QFont font(QStringLiteral("WenQuanYi Micro Hei"));
    font.setPixelSize(12);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    QApplication::setFont(font);
    QCOMPARE(QFontInfo(font).family(), font.family());
}

QImage GridPicturesTest::picture(const QString &layout, bool dark, const QString &fault)
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

void GridPicturesTest::layoutLooksAsBefore_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<bool>("dark");
    for (const char *layout : {"bands", "cells", "groups"}) {
        QTest::addRow("%s-light", layout) << layout << false;
        QTest::addRow("%s-dark", layout) << layout << true;
    }
}

void GridPicturesTest::layoutLooksAsBefore()
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

void GridPicturesTest::faultIsSeen_data()
{
    QTest::addColumn<QString>("fault");
    testRow("no edge between bands", "strongLineColor: #EEF2F7");
    testRow("other colour of every other row", "alternateColor: #FFFFFF");
    testRow("no lines", "lineColor: #FFFFFF");
    testRow("other links", "linkColor: #1F2733");
    testRow("other focus", "focusColor: #D8E8FF");
    testRow("no hover", "hoverColor: #FAFBFD");
}

void GridPicturesTest::faultIsSeen()
{
    QFETCH(QString, fault);
    static const QImage sound = picture("bands", false);

    const QString sheet = QStringLiteral(" Qtitan--Grid { qproperty-%1; }").arg(fault);
    const QString off = difference(sound, picture("bands", false, sheet));

    QVERIFY(!off.isEmpty());
    QCOMPARE(difference(sound, sound), QString());
}

SUBJECT_TEST_MAIN(GridPicturesTest)
#include "tst_gridpictures.moc"
