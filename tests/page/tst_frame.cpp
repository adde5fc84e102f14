#include "pageservice.h"
#include "screenobject.h"
#include "subjecttest.h"
#include "testhost.h"
#include "viewdocument.h"

#include "tfframesubjectzhp.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"

#include <QSignalSpy>

#include <memory>

/// The component of a composite screen against a service: its state, its arguments, and what it asks for.
class FrameTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stateComesBackAsItWasSaved();
    void stateIsReadAsFarAsItIsUsable_data();
    void stateIsReadAsFarAsItIsUsable();
    void changedArgumentsRefreshThePage_data();
    void changedArgumentsRefreshThePage();
    void bindingTheSameArgumentAgainReadsNothing();
    void ownArgumentsBeatGlobalOnes();
    void barsAreAsCachedAtEveryNewPage();
    void screenWithoutWhatIsNeededLeavesTheFrameWorking();

private:
    /// A frame on view 260 with the filter argument CODE, bound to the argument "view".
    TFFrameSubjectZHP *restored();
    int refreshes() const { return debugLines().filter("refresh right container:").size(); }
    static QString text(const TFFrameSubjectZHP *frame);

    std::unique_ptr<PageService> m_service;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<ScreenObject> m_screen;
    std::unique_ptr<QWidget> m_holder;
};

namespace {
const QVariantMap goodState{{"version", "1.0.0"},        {"titleVisible", true},
                            {"filterVisible", true},     {"mainViewVisible", true},
                            {"subViewVisible", true},    {"pageBarVisible", false},
                            {"objVwId", qlonglong(260)}, {"title", "股票"},
                            {"objVwIdBinder", "view"},   {"filterMap", QVariantMap{{"CODE", "600000"}}}};

/// The good state with some keys replaced; an invalid value takes a key out.
QVariantMap stateWith(const QVariantMap &changes)
{
    QVariantMap state = goodState;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change->isValid())
            state.insert(change.key(), *change);
        else
            state.remove(change.key());
    }
    return state;
}
} // namespace

void FrameTest::init()
{
    beginMessages();
    allowWarnings("frozen count is invaild");
    m_service = std::make_unique<PageService>();
    m_host = std::make_unique<TestHost>(m_service.get());
    m_screen = std::make_unique<ScreenObject>();
    m_holder = std::make_unique<QWidget>();
    m_screen->offerOn(m_holder.get());
    m_service->answer({"/bas/subject/data", 0}, PageService::data(ViewDocument().config()));
    m_service->answer({"/bas/subject/data", 1}, PageService::data(ViewDocument().rows(0, 3, 3)));
}

void FrameTest::cleanup()
{
    m_holder.reset();
    m_screen.reset();
    m_service.reset();
    m_host.reset();
    endMessages();
}

TFFrameSubjectZHP *FrameTest::restored()
{
    auto *frame = new TFFrameSubjectZHP(m_holder.get());
    frame->restore(goodState);
    return frame;
}

/// View, title and own arguments, such as "260 股票 CODE=600000".
QString FrameTest::text(const TFFrameSubjectZHP *frame)
{
    QStringList words{QString::number(frame->objVwId()), frame->title()};
    const QVariantMap map = frame->filterMap();
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        words.append(entry.key() + '=' + entry.value().toString());
    return words.join(' ');
}

void FrameTest::stateComesBackAsItWasSaved()
{
    auto *frame = restored();
    QVariantMap early;
    frame->save(early);
    QTRY_VERIFY(frame->page()->mainView()->hasBars());
    QVariantMap late{{"other", 1}};
    frame->save(late);

    QCOMPARE(early, goodState);
    QCOMPARE(late.take("other"), QVariant(1));
    QCOMPARE(late, goodState);
    QCOMPARE(frame->windowTitle(), QString("股票"));
    QCOMPARE(m_service->requestsFor({"/bas/subject/data", 0, 260}).size(), 1);
}

void FrameTest::stateIsReadAsFarAsItIsUsable_data()
{
    QTest::addColumn<QVariantMap>("changes");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("expectedWarnings");

    const QVariantMap other{{"NAME", "x"}};
    QTest::newRow("no version keeps the arguments")
        << QVariantMap{{"version", {}}, {"filterMap", other}} << "260 股票 CODE=600000" << QStringList();
    QTest::newRow("first version keeps the arguments")
        << QVariantMap{{"version", "0.0.0"}, {"filterMap", other}} << "260 股票 CODE=600000" << QStringList();
    QTest::newRow("older version") << QVariantMap{{"version", "0.9"}, {"filterMap", other}}
                                   << "260 股票 NAME=x" << QStringList();
    QTest::newRow("newer version") << QVariantMap{{"version", "2.1"}, {"filterMap", other}, {"colour", "red"}}
                                   << "260 股票 NAME=x" << QStringList{"version 2.1 is newer"};
    QTest::newRow("view 0 keeps the view")
        << QVariantMap{{"objVwId", 0}} << "260 股票 CODE=600000" << QStringList();
    QTest::newRow("missing keys are empty")
        << QVariantMap{{"title", {}}, {"filterMap", {}}} << "260 " << QStringList();
    QTest::newRow("texts of an INI file") << QVariantMap{{"objVwId", "261"}, {"titleVisible", "true"}}
                                          << "261 股票 CODE=600000" << QStringList();
    QTest::newRow("wrong types") << QVariantMap{{"objVwId", "abc"}, {"filterMap", 7}, {"title", other}}
                                 << "260 "
                                 << QStringList{"\"objVwId\" is a QString", "\"filterMap\" is a int",
                                                "\"title\" is a QVariantMap"};
}

void FrameTest::stateIsReadAsFarAsItIsUsable()
{
    QFETCH(QVariantMap, changes);
    QFETCH(QString, expected);
    QFETCH(QStringList, expectedWarnings);
    auto *frame = restored();
    const int before = refreshes();
    for (const QString &warning : expectedWarnings)
        expectWarning(warning);

    frame->restore(stateWith(changes));

    QCOMPARE(text(frame), expected);
    QCOMPARE(refreshes(), before + 1);
}

void FrameTest::changedArgumentsRefreshThePage_data()
{
    QTest::addColumn<QVariantMap>("args");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("expectedRefreshes");

    QTest::newRow("none") << QVariantMap() << "260 股票 CODE=600000" << 0;
    QTest::newRow("overridden here") << QVariantMap{{"CODE", "1"}} << "260 股票 CODE=600000" << 0;
    QTest::newRow("one that is not") << QVariantMap{{"CODE", "1"}, {"NAME", "2"}, {"OTHER", "3"}}
                                     << "260 股票 CODE=600000" << 1;
    QTest::newRow("another view, and an argument")
        << QVariantMap{{"view", "债券|300"}} << "300 债券 CODE=600000" << 2;
    QTest::newRow("the same view") << QVariantMap{{"view", "新名|260"}} << "260 新名 CODE=600000" << 1;
    QTest::newRow("view 0") << QVariantMap{{"view", "新名|0"}} << "260 新名 CODE=600000" << 2;
    QTest::newRow("no view at all") << QVariantMap{{"view", "新名"}} << "260 股票 CODE=600000" << 1;
    QTest::newRow("one part too many") << QVariantMap{{"view", "a|300|b"}} << "260 股票 CODE=600000" << 1;
}

void FrameTest::changedArgumentsRefreshThePage()
{
    QFETCH(QVariantMap, args);
    QFETCH(QString, expected);
    QFETCH(int, expectedRefreshes);
    auto *frame = restored();
    const int before = refreshes();

    m_screen->setArgs(args);

    QCOMPARE(text(frame), expected);
    QCOMPARE(refreshes() - before, expectedRefreshes);
}

void FrameTest::bindingTheSameArgumentAgainReadsNothing()
{
    auto *frame = restored();
    m_screen->blockSignals(true);
    m_screen->setArgs({{"view", "债券|300"}, {"second", "基金|400"}});

    frame->setObjVwIdGlKey("view");
    frame->setObjVwIdGlKey("");
    QCOMPARE(text(frame), QString("260 股票 CODE=600000"));

    frame->setObjVwIdGlKey("second");
    QCOMPARE(text(frame), QString("400 基金 CODE=600000"));
    QCOMPARE(frame->binderKey(), QString("second"));
}

void FrameTest::ownArgumentsBeatGlobalOnes()
{
    auto *frame = restored();
    m_screen->setArgs({{"CODE", "1"}, {"NAME", "global"}});
    QCOMPARE(frame->property("glFilterArgs").toMap(), (QVariantMap{{"CODE", "600000"}, {"NAME", "global"}}));

    const int before = refreshes();
    frame->setProperty("glFilterArgs", QVariantMap{{"NAME", "own"}});
    frame->setProperty("glFilterArgs", QVariantMap{{"NAME", "own"}});
    QCOMPARE(text(frame), QString("260 股票 NAME=own"));
    QCOMPARE(refreshes(), before + 1);
    QCOMPARE(frame->glFilterArgs().value("CODE"), QVariant("1"));
}

void FrameTest::barsAreAsCachedAtEveryNewPage()
{
    TFFrameSubjectZHP fresh(m_holder.get());
    auto *frame = restored();
    const auto bars = [](const TFFrameSubjectZHP &of) {
        const TFRightContainer *page = of.page();
        return QString("%1 %2 %3")
            .arg(page->mainView()->isFilterBarVisible())
            .arg(page->mainView()->isPageBarVisible())
            .arg(page->areChildViewsVisible());
    };
    QSignalSpy freshData(fresh.page(), &TFRightContainer::signalDataChanged);
    QSignalSpy data(frame->page(), &TFRightContainer::signalDataChanged);

    fresh.setObjVwId(260);
    fresh.refreshPage();
    QTRY_COMPARE(freshData.count(), 1);
    QCOMPARE(bars(fresh), QString("0 0 0"));

    QTRY_COMPARE(data.count(), 1);
    QCOMPARE(bars(*frame), QString("1 0 1"));
    frame->page()->mainView()->setFilterBarVisible(false);
    frame->refreshPage();
    QTRY_COMPARE(data.count(), 2);
    QCOMPARE(bars(*frame), QString("1 0 1"));
}

void FrameTest::screenWithoutWhatIsNeededLeavesTheFrameWorking()
{
    QObject bare;
    m_holder->setProperty("zhpObj", QVariant::fromValue(&bare));
    expectWarning("QObject has no signal argsChanged");
    restored();

    m_screen->offerOn(m_holder.get());
    auto *frame = restored();
    m_screen.reset();
    frame->setObjVwIdGlKey("another");

    QCOMPARE(text(frame), QString("260 股票 CODE=600000"));
    QCOMPARE(frame->glFilterArgs(), frame->filterMap());
}

SUBJECT_TEST_MAIN(FrameTest)
#include "tst_frame.moc"
