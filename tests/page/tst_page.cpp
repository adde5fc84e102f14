#include "subjecttest.h"

#include <QLabel>
#include <QStackedWidget>
#include <QTreeView>

#include "filterwidget/tfcacheconfig.h"
#include "records/tfancestors.h"
#include "testservice.h"
#include "tfcore/tfserviceconfig.h"
#include "tfcore/tfwebview.h"
#include "tfqsscommon.h"
#include "tfrightcontainer.h"
#include "tfsubjectmainframe.h"
#include "tfsubjectpage.h"
#include "tfsubjecttreewidget.h"
#include "tftreewidgetcontainer.h"
#include "treetext.h"

namespace {
constexpr int navigationObject = 38;
constexpr int blocksObject = 43;
constexpr int constantsObject = 390;

QUrl pageUrl(const QString &query)
{
    return QUrl("view://subjectpage?" + query);
}
} // namespace

class TestPage : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void urlGivesTopicCaptionAndTitle_data();
    void urlGivesTopicCaptionAndTitle();
    void queryItemsBecomePropertiesAndArguments();
    void foreignUrlLeavesThePageEmpty_data();
    void foreignUrlLeavesThePageEmpty();
    void titleForTheHostFollowsTheCaption();
    void skinColoursReachTheCommonStore();
    void stockPageShowsTreesAndOpensTheNode();
    void nodeCodeTakesPrecedenceOverTheView();
    void urlWithoutNodeAndViewShowsAnEmptyTree();
    void failedNavigationLeavesTheImage_data();
    void failedNavigationLeavesTheImage();
    void failedConstantsLeaveTheTableAlone();
    void viewThatAsksForABlockShowsTheBlockTree();
    void secondInitBuildsNothingAgain();
    void pageClosedDuringItsRequestsTakesNoReply();

private:
    template <typename T> T *child(const QString &name = {}) const { return m_page->findChild<T *>(name); }
    QLabel *loadingImage() const
    {
        return child<TFSubjectMainFrame>()->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QStringList treeLines(const QString &tree) const;
    QString requestLines() const;
    void open(const QString &query);

    TestService *m_service = nullptr;
    std::unique_ptr<TFSubjectPage> m_page;
    QJsonValue m_navigation;
    QJsonValue m_blocks;
};

void TestPage::init()
{
    beginMessages();
    m_service = new TestService(this);
    TFServiceConfig::instance()->setHttpUrl("servercfg.ini:Subject", m_service->url());
    m_navigation = TreeText::navigation();
    m_blocks = TreeText::blocks();
    m_service->setRule([this](const TestService::Request &request) {
        const int object = request.body.value("objId").toInt();
        // A view's configuration that is no envelope ends with the data page: what it makes of a good one is
        // told by its own tests.
        if (request.path == "/bas/subject/data")
            return TestService::Answer{"{}"};
        return TestService::Answer{TestService::envelope(object == navigationObject ? m_navigation
                                                         : object == blocksObject   ? m_blocks
                                                                                    : QJsonValue())};
    });
    m_page = std::make_unique<TFSubjectPage>();
}

void TestPage::cleanup()
{
    m_page.reset();
    delete m_service;
    endMessages();
}

void TestPage::open(const QString &query)
{
    m_page->init(pageUrl(query), QVariant());
}

QStringList TestPage::treeLines(const QString &tree) const
{
    const auto *widget = child<TFSubjectTreeWidget>(tree);
    return widget && widget->view()->model() ? TreeText::lines(*widget->view()->model()) : QStringList();
}

/// What was asked for: the number of a data object with its root, or a view with its flag.
QString TestPage::requestLines() const
{
    QStringList lines;
    for (const TestService::Request &request : m_service->requests()) {
        const QJsonObject &body = request.body;
        lines << (body.contains("objId")
                      ? QString("%1:%2")
                            .arg(body["objId"].toInt())
                            .arg(body["P_NODE_CODE"].toVariant().toString())
                      : QString("view %1 flag %2").arg(body["obj_vw_id"].toInt()).arg(body["flag"].toInt()));
    }
    lines.sort();
    return lines.join(", ");
}

void TestPage::urlGivesTopicCaptionAndTitle_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("topic");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("title");

    testRow("all given", "view://subjectpage?pnodecode=5&title=标题", "5", "标题", "标题");
    testRow("capitals", "VIEW://MySubjectPage.X?PNODECODE=5&TITLE=ABC", "5", "abc", "abc");
    testRow("negative code", "view://subjectpage?pnodecode=-3&title=t", "-3", "t", "t");
    testRow("code that is no number", "view://subjectpage?pnodecode=2x&objvwid=none&title=t", "-1", "t", "t");
    testRow("nothing", "view://subjectpage", "-1", "", "");
    testRow("view alone finds its topic and no caption", "view://subjectpage?objvwid=612", "61", "", "");
    testRow("topic without a title", "view://subjectpage?pnodecode=61", "61", "宏观经济专题", "宏观经济专题");
    testRow("escaped title", "view://subjectpage?pnodecode=5&title=a%26b%25", "5", "a&b%", "a&b%");
}

void TestPage::urlGivesTopicCaptionAndTitle()
{
    QFETCH(QString, url);
    QSignalSpy titles(m_page.get(), qOverload<QString>(&TFSubjectPage::signalWindowTitleChanged));
    QSignalSpy icons(m_page.get(), qOverload<QIcon>(&TFSubjectPage::signalWindowIconChanged));

    m_page->init(QUrl(url), QVariant());

    QTRY_VERIFY(!m_service->requests().isEmpty());
    QTEST(m_service->requests().first().body["P_NODE_CODE"].toVariant().toString(), "topic");
    QTEST(child<TFSubjectMainFrame>()->caption(), "caption");
    QCOMPARE(titles.count(), 1);
    QTEST(titles.first().first().toString(), "title");
    QCOMPARE(icons.count(), 1);
    QCOMPARE(m_page->url(), QUrl(url).toString());
}

void TestPage::queryItemsBecomePropertiesAndArguments()
{
    open("pnodecode=5&Extra=Value&extra=second&enabled=false&title=t");

    QCOMPARE(m_page->property("extra").toString(), QString("second"));
    QCOMPARE(m_page->property("pnodecode"), QVariant("5"));
    QVERIFY(m_page->isEnabled());
    const QMap<QString, QVariant> arguments = child<TFSubjectMainFrame>()->f9Arguments();
    QCOMPARE(arguments.keys(), QStringList({"enabled", "extra", "pnodecode", "title"}));
    QCOMPARE(arguments.value("extra"), QVariant("second"));
    QCOMPARE(child<TFSubjectMainFrame>()->property("pageUrl").toString(), m_page->url());
}

void TestPage::foreignUrlLeavesThePageEmpty_data()
{
    QTest::addColumn<QUrl>("url");
    testRow("other scheme", QUrl("http://subjectpage?pnodecode=5"));
    testRow("other host", QUrl("view://otherpage?pnodecode=5"));
    testRow("word in the query alone", QUrl("view://x?title=subjectpage"));
    testRow("empty", QUrl());
}

void TestPage::foreignUrlLeavesThePageEmpty()
{
    QFETCH(QUrl, url);
    expectWarning("url is unrecognizable");

    m_page->init(url, QVariant());

    QVERIFY(!child<TFRightContainer>());
    QVERIFY(m_page->url().isEmpty());
}

void TestPage::titleForTheHostFollowsTheCaption()
{
    open("pnodecode=5&title=t");
    QSignalSpy titles(m_page.get(), qOverload<QString>(&TFSubjectPage::signalWindowTitleChanged));

    m_page->slotChangeWindowTitle("t");
    m_page->slotChangeWindowTitle("other");
    m_page->slotChangeWindowTitle("");

    QStringList seen;
    for (const QVariantList &arguments : titles)
        seen << arguments.first().toString();
    QCOMPARE(seen, QStringList({"t", "t:other", "t"}));
    for (const QString &signal : {m_page->signalWindowTitleChanged(), m_page->signalWindowIconChanged()})
        QVERIFY(m_page->metaObject()->indexOfSignal(signal.mid(1).toLatin1()) >= 0);
}

void TestPage::skinColoursReachTheCommonStore()
{
    m_page->applySkinStyle(
        "TFSubjectPage { qproperty-highlightColor: #123456; qproperty-headerSplitColor: #234567; }");
    m_page->applySkinStyle(QVariant());
    m_page->ensurePolished();

    QCOMPARE(TFQssCommon::instance()->highlightColor(), QColor("#123456"));
    QCOMPARE(TFQssCommon::instance()->headerSplitColor(), QColor("#234567"));
    QVERIFY(!m_page->styleSheet().isEmpty());
}

void TestPage::stockPageShowsTreesAndOpensTheNode()
{
    QJsonArray rows = TreeText::navigation();
    rows.append(QJsonObject{{"NODE_CODE", 2}, {"VALUE", 1}, {"NAME", "北京"}, {"TYPE", 7}});
    m_navigation = rows;
    open("pnodecode=2&nodecode=13&title=股票专题");
    QVERIFY(!loadingImage()->isHidden());

    QTRY_COMPARE(requestLines(), QString("38:2, 390:, 43:, view 261 flag 0"));
    QTRY_COMPARE(treeLines("BlockTree"), QStringList({"沪深", "  上海", "  深圳", "    GEM", "其他"}));
    QTRY_VERIFY(loadingImage()->isHidden());

    QCOMPARE(treeLines("SubjectTree").size(), 8);
    QVERIFY(child<TFSubjectTreeWidget>("BlockTree")->isHidden());
    QCOMPARE(child<TFRightContainer>()->currentView(), qint64(261));
    QCOMPARE(child<TFSubjectMainFrame>()->windowTitle(), QString("股票专题:行情"));
    QCOMPARE(child<TFTreeWidgetContainer>()->windowTitle(), QString("股票专题"));
    QTRY_COMPARE(TFCacheConfig::instance()->records("7", "").size(), 1);
}

void TestPage::nodeCodeTakesPrecedenceOverTheView()
{
    m_navigation = QJsonArray{TreeText::node(1, 5, "a", 1, 100), TreeText::node(2, 5, "b", 1, 200)};
    open("pnodecode=5&nodecode=2&objvwid=100");

    QTRY_COMPARE(requestLines(), QString("38:5, 390:, view 200 flag 0"));
}

void TestPage::urlWithoutNodeAndViewShowsAnEmptyTree()
{
    open("pnodecode=5&title=t");

    QTRY_VERIFY(loadingImage()->isHidden());
    QTRY_COMPARE(requestLines(), QString("38:5, 390:"));
    QCOMPARE(treeLines("SubjectTree"), QStringList());
}

void TestPage::failedNavigationLeavesTheImage_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("warning");

    testRow("service fault", 500, false, TestService::envelope(TreeText::navigation()), "no navigation");
    testRow("closed connection", 200, true, QByteArray(), "no navigation");
    testRow("no JSON", 200, false, QByteArray("<html>"), "no navigation");
    testRow("missing key", 200, false, QByteArray(R"({"state": 0, "data": []})"), "no navigation");
    testRow("no rows", 200, false, TestService::envelope(QJsonArray{}), "has no rows");
    testRow("null", 200, false, TestService::envelope(QJsonValue()), "has no rows");
}

void TestPage::failedNavigationLeavesTheImage()
{
    QFETCH(int, status);
    QFETCH(bool, isClosed);
    QFETCH(QByteArray, text);
    QFETCH(QString, warning);
    allowWarnings("respone is not json obj");
    expectWarning(warning);
    m_service->setRule([=](const TestService::Request &) {
        return TestService::Answer{text, status, 0, isClosed};
    });

    open("pnodecode=5&nodecode=11&title=t");

    QTRY_VERIFY(warnings().filter(warning).size() == 1);
    QVERIFY(!loadingImage()->isHidden());
    QCOMPARE(treeLines("SubjectTree"), QStringList());
    QVERIFY(!requestLines().contains("390")); // the toolkit itself repeats a request whose connection closed
}

void TestPage::failedConstantsLeaveTheTableAlone()
{
    TFCacheConfig::instance()->fill(QJsonArray{QJsonObject{{"VALUE", 1}, {"NAME", "a"}, {"TYPE", 9}}});
    m_service->setRule([this](const TestService::Request &request) {
        if (request.body["objId"].toInt() == constantsObject)
            return TestService::Answer{{}, 500};
        return TestService::Answer{TestService::envelope(m_navigation)};
    });

    open("pnodecode=5&title=t");

    QTRY_VERIFY(debugLines().filter("download error").size() == 1);
    QTRY_VERIFY(QThreadPool::globalInstance()->waitForDone(0));
    QCoreApplication::processEvents();
    QCOMPARE(TFCacheConfig::instance()->records("9", "").size(), 1);
}

void TestPage::viewThatAsksForABlockShowsTheBlockTree()
{
    open("pnodecode=2&nodecode=11&title=t");
    QTRY_COMPARE(treeLines("BlockTree").size(), 5);
    QTRY_VERIFY(loadingImage()->isHidden());
    auto *right = child<TFRightContainer>();

    emit right->sigSectorNumChanged(QString("3"), QString("沪深"));

    QVERIFY(!child<TFSubjectTreeWidget>("BlockTree")->isHidden());
    QCOMPARE(treeLines("BlockTree"), QStringList({"沪深", "  上海", "  [x] 深圳", "    [x] GEM", "其他"}));
    const auto *context = TFAncestors::find<ITFPageContext>(right, "TFSubjectMainFrame");
    QVERIFY(context);
    QCOMPARE(context->blockFilter().value.toJsonArray().size(), 2);
}

void TestPage::secondInitBuildsNothingAgain()
{
    open("pnodecode=2&nodecode=11&title=t");
    QTRY_COMPARE(requestLines(), QString("38:2, 390:, 43:, view 260 flag 0"));

    open("pnodecode=2&nodecode=11&title=t");

    // The view is open already and is not requested again.
    QTRY_COMPARE(requestLines(), QString("38:2, 38:2, 390:, 390:, 43:, 43:, view 260 flag 0"));
    QCOMPARE(m_page->findChildren<TFRightContainer *>().size(), 1);
    QCOMPARE(m_page->findChildren<TFWebView *>().size(), 1);
}

void TestPage::pageClosedDuringItsRequestsTakesNoReply()
{
    m_service->setRule([this](const TestService::Request &) {
        return TestService::Answer{TestService::envelope(m_navigation), 200, 0, false, true};
    });
    open("pnodecode=2&nodecode=11&title=t");
    QTRY_COMPARE(m_service->heldCount(), 2);

    m_page.reset();
    m_service->release();
    m_service->release();

    QTRY_VERIFY(QThreadPool::globalInstance()->activeThreadCount() == 0);
    QCoreApplication::processEvents();
    QCOMPARE(requestLines(), QString("38:2, 43:"));
}

SUBJECT_TEST_MAIN(TestPage)
#include "tst_page.moc"
