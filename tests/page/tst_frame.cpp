#include "framefixture.h"

#include <QSignalSpy>

/// The component of a composite screen against a service: its state, its arguments, and what it asks for.
class FrameTest : public FrameFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void stateComesBackAsItWasSaved()
    {
        TFFrameSubjectZHP *frame = makeFrame();
        QCOMPARE(saved(frame), goodState());
        QTRY_VERIFY(frame->page()->mainView()->hasBars());
        QCOMPARE(saved(frame), goodState());
        QCOMPARE(frame->windowTitle(), QString("股票"));
        QCOMPARE(service->requestsFor({"/bas/subject/data", 0, 260}).size(), 1);
    }

    void stateIsReadAsFarAsItIsUsable_data()
    {
        QTest::addColumn<QVariantMap>("changes");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QStringList>("expectedWarnings");

        const auto add = [](const char *name, const QVariantMap &changes, const QString &expected,
                            const QStringList &warnings = {}) { testRow(name, changes, expected, warnings); };
        const QVariantMap other{{"NAME", "x"}};
        add("no version", {{"version", {}}, {"filterMap", other}}, "260 股票 CODE=600000");
        add("first version", {{"version", "0.0.0"}, {"filterMap", other}}, "260 股票 CODE=600000");
        add("older version", {{"version", "0.9"}, {"filterMap", other}}, "260 股票 NAME=x");
        add("newer version", {{"version", "2.1"}, {"filterMap", other}, {"colour", "red"}}, "260 股票 NAME=x",
            {"version 2.1 is newer"});
        add("view 0", {{"objVwId", 0}}, "260 股票 CODE=600000");
        add("missing keys", {{"title", {}}, {"filterMap", {}}}, "260 ");
        add("texts", {{"objVwId", "261"}, {"titleVisible", "true"}}, "261 股票 CODE=600000");
        add("wrong types", {{"objVwId", "abc"}, {"filterMap", 7}, {"title", other}}, "260 ",
            {"\"objVwId\" is a QString", "\"filterMap\" is a int", "\"title\" is a QVariantMap"});
    }

    void stateIsReadAsFarAsItIsUsable()
    {
        QFETCH(QVariantMap, changes);
        QFETCH(QString, expected);
        QFETCH(QStringList, expectedWarnings);
        TFFrameSubjectZHP *frame = makeFrame();
        const int before = refreshes();
        for (const QString &warning : expectedWarnings)
            expectWarning(warning);

        frame->restore(stateWith(changes));

        QCOMPARE(text(frame), expected);
        QCOMPARE(refreshes(), before + 1);
    }

    void changedArgumentsRefreshThePage_data()
    {
        QTest::addColumn<QVariantMap>("args");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("expectedRefreshes");

        const QString same = "260 股票 CODE=600000";
        testRow("none", QVariantMap(), same, 0);
        testRow("own", QVariantMap{{"CODE", "1"}}, same, 0);
        testRow("others", QVariantMap{{"CODE", "1"}, {"NAME", "2"}, {"OTHER", "3"}}, same, 1);
        testRow("another view", QVariantMap{{"view", "债券|300"}}, "300 债券 CODE=600000", 2);
        testRow("the same view", QVariantMap{{"view", "新名|260"}}, "260 新名 CODE=600000", 1);
        testRow("view 0", QVariantMap{{"view", "新名|0"}}, "260 新名 CODE=600000", 2);
        testRow("three parts", QVariantMap{{"view", "a|300|b"}}, same, 1);
    }

    void changedArgumentsRefreshThePage()
    {
        QFETCH(QVariantMap, args);
        QFETCH(QString, expected);
        QFETCH(int, expectedRefreshes);
        TFFrameSubjectZHP *frame = makeFrame();
        const int before = refreshes();

        screen->setArgs(args);

        QCOMPARE(text(frame), expected);
        QCOMPARE(refreshes() - before, expectedRefreshes);
    }

    void bindingTheSameArgumentAgainReadsNothing()
    {
        TFFrameSubjectZHP *frame = makeFrame();
        screen->blockSignals(true);
        screen->setArgs({{"view", "债券|300"}, {"second", "基金|400"}});

        frame->setObjVwIdGlKey("view");
        frame->setObjVwIdGlKey("");
        QCOMPARE(text(frame), QString("260 股票 CODE=600000"));

        frame->setObjVwIdGlKey("second");
        QCOMPARE(text(frame), QString("400 基金 CODE=600000"));
    }

    void ownArgumentsBeatGlobalOnes()
    {
        TFFrameSubjectZHP *frame = makeFrame();
        screen->setArgs({{"CODE", "1"}, {"NAME", "global"}});
        QCOMPARE(frame->property("glFilterArgs").toMap(),
                 (QVariantMap{{"CODE", "600000"}, {"NAME", "global"}}));

        const int before = refreshes();
        for (int i = 0; i < 2; ++i)
            frame->setProperty("glFilterArgs", QVariantMap{{"NAME", "own"}});
        QCOMPARE(text(frame), QString("260 股票 NAME=own"));
        QCOMPARE(refreshes(), before + 1);
    }

    void barsAreAsCachedAtEveryNewPage()
    {
        TFFrameSubjectZHP *frame = makeFrame();
        TFRightContainer *page = frame->page();
        QSignalSpy data(page, &TFRightContainer::signalDataChanged);
        for (int i = 0; i < 2; ++i) {
            QVERIFY(data.wait());
            QVERIFY(page->mainView()->isFilterBarVisible() && !page->mainView()->isPageBarVisible());
            page->mainView()->setFilterBarVisible(false);
            frame->refreshPage();
        }
    }

    void screenWithoutWhatIsNeededLeavesTheFrameWorking()
    {
        QObject bare;
        holder->setProperty("zhpObj", QVariant::fromValue(&bare));
        expectWarning("QObject has no signal argsChanged");
        makeFrame();

        screen->offerOn(holder.get());
        TFFrameSubjectZHP *frame = makeFrame();
        screen.reset();
        frame->setObjVwIdGlKey("another");
        QCOMPARE(text(frame), QString("260 股票 CODE=600000"));
        QCOMPARE(frame->glFilterArgs(), frame->filterMap());
    }
};

SUBJECT_TEST_MAIN(FrameTest)
#include "tst_frame.moc"
