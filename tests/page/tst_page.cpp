#include "subjecttest.h"

#include <QLabel>
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
enum DataObject { navigationObject = 38, blocksObject = 43, constantsObject = 390 };
} // namespace

class TestPage : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        m_service = std::make_unique<TestService>();
        TFServiceConfig::instance()->setHttpUrl("servercfg.ini:Subject", m_service->url());
        m_navigation = TreeText::navigation();
        m_service->setRule([this](const TestService::Request &request) {
            const int object = request.body.value("objId").toInt();
            // A view's configuration that is no envelope ends with the data page: what it makes of a good one
            // is told by its own tests.
            if (request.path == "/bas/subject/data")
                return TestService::Answer{"{}"};
            return TestService::Answer{TestService::envelope(object == navigationObject ? m_navigation
                                                             : object == blocksObject
                                                                 ? QJsonValue(TreeText::blocks())
                                                                 : QJsonValue())};
        });
        m_page = std::make_unique<TFSubjectPage>();
    }

    void cleanup()
    {
        m_page.reset();
        m_service.reset();
        endMessages();
    }

    void urlGivesTopicCaptionAndTitle_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("topic");
        QTest::addColumn<QString>("caption");

        testRow("all given", "view://subjectpage?pnodecode=5&title=标题", "5", "标题");
        testRow("capitals", "VIEW://MySubjectPage.X?PNODECODE=5&TITLE=ABC", "5", "abc");
        testRow("negative code", "view://subjectpage?pnodecode=-3&title=t", "-3", "t");
        testRow("no number", "view://subjectpage?pnodecode=2x&objvwid=none&title=t", "-1", "t");
        testRow("nothing", "view://subjectpage", "-1", "");
        testRow("view alone finds its topic and no caption", "view://subjectpage?objvwid=612", "61", "");
        testRow("topic without a title", "view://subjectpage?pnodecode=61", "61", "宏观经济专题");
        testRow("escaped title", "view://subjectpage?pnodecode=5&title=a%26b%25", "5", "a&b%");
    }

    void urlGivesTopicCaptionAndTitle()
    {
        QFETCH(QString, url);
        QFETCH(QString, caption);
        QSignalSpy titles(m_page.get(), qOverload<QString>(&TFSubjectPage::signalWindowTitleChanged));
        QSignalSpy icons(m_page.get(), qOverload<QIcon>(&TFSubjectPage::signalWindowIconChanged));

        m_page->init(QUrl(url), QVariant());

        QTRY_VERIFY(!m_service->requests().isEmpty());
        QTEST(m_service->requests().first().body["P_NODE_CODE"].toVariant().toString(), "topic");
        QCOMPARE(child<TFSubjectMainFrame>()->caption(), caption);
        QCOMPARE(titles, QList<QVariantList>{{caption}});
        QCOMPARE(icons.count(), 1);
        QCOMPARE(m_page->url(), QUrl(url).toString());
    }

    void queryItemsBecomePropertiesAndArguments()
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

    void foreignUrlLeavesThePageEmpty()
    {
        for (const char *url : {"http://subjectpage?pnodecode=5", "view://x?title=subjectpage", ""}) {
            expectWarning("^url is unrecognizable$");
            m_page->init(QUrl(url), QVariant());
            QVERIFY2(!child<TFRightContainer>() && m_page->url().isEmpty(), url);
        }
    }

    void titleForTheHostFollowsTheCaption()
    {
        open("pnodecode=5&title=t");
        QSignalSpy titles(m_page.get(), qOverload<QString>(&TFSubjectPage::signalWindowTitleChanged));

        for (const char *title : {"t", "other", ""})
            m_page->slotChangeWindowTitle(title);

        QCOMPARE(titles, (QList<QVariantList>{{"t"}, {"t:other"}, {"t"}}));
        for (const QString &signal : {m_page->signalWindowTitleChanged(), m_page->signalWindowIconChanged()})
            QVERIFY(m_page->metaObject()->indexOfSignal(signal.mid(1).toLatin1()) >= 0);
    }

    void skinColoursReachTheCommonStore()
    {
        m_page->applySkinStyle(
            "TFSubjectPage { qproperty-highlightColor: #123456; qproperty-headerSplitColor: #234567; }");
        m_page->applySkinStyle(QVariant());
        m_page->ensurePolished();

        QCOMPARE(TFQssCommon::instance()->highlightColor(), QColor("#123456"));
        QCOMPARE(TFQssCommon::instance()->headerSplitColor(), QColor("#234567"));
        QVERIFY(!m_page->styleSheet().isEmpty());
    }

    void stockPageShowsTreesAndOpensTheNodeInPlaceOfTheView()
    {
        QJsonArray rows = TreeText::navigation();
        rows.append(QJsonObject{{"NODE_CODE", 2}, {"VALUE", 1}, {"NAME", "北京"}, {"TYPE", 7}});
        m_navigation = rows;
        open("pnodecode=2&nodecode=13&objvwid=260&title=股票专题");
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

    void urlWithoutNodeAndViewShowsAnEmptyTree()
    {
        open("pnodecode=5&title=t");

        QTRY_VERIFY(loadingImage()->isHidden());
        QTRY_COMPARE(requestLines(), QString("38:5, 390:"));
        QCOMPARE(treeLines("SubjectTree"), QStringList());
    }

    void failedNavigationLeavesTheImage_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("warning");

        testRow("service fault", 500, TestService::envelope(TreeText::navigation()), "no navigation");
        testRow("missing key", 200, QByteArray(R"({"state": 0, "data": []})"), "no navigation");
        testRow("no rows", 200, TestService::envelope(QJsonArray{}), "has no rows");
    }

    void failedNavigationLeavesTheImage()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, text);
        QFETCH(QString, warning);
        expectWarning(warning);
        m_service->setRule([=](const TestService::Request &) { return TestService::Answer{text, status}; });

        open("pnodecode=5&nodecode=11&title=t");

        QTRY_COMPARE(warnings().filter(warning).size(), 1);
        QVERIFY(!loadingImage()->isHidden());
        QCOMPARE(treeLines("SubjectTree"), QStringList());
        QCOMPARE(requestLines(), QString("38:5"));
    }

    void failedConstantsLeaveTheTableAlone()
    {
        TFCacheConfig::instance()->fill(QJsonArray{QJsonObject{{"VALUE", 1}, {"NAME", "a"}, {"TYPE", 9}}});
        m_service->setRule([this](const TestService::Request &request) {
            const bool isGood = request.body["objId"].toInt() != constantsObject;
            return TestService::Answer{TestService::envelope(m_navigation), isGood ? 200 : 500};
        });

        open("pnodecode=5&title=t");

        QTRY_COMPARE(debugLines().filter("download error").size(), 1);
        QTRY_VERIFY(QThreadPool::globalInstance()->waitForDone(0));
        QCoreApplication::processEvents();
        QCOMPARE(TFCacheConfig::instance()->records("9", "").size(), 1);
    }

    void viewThatAsksForABlockShowsTheBlockTree()
    {
        open("pnodecode=2&nodecode=11&title=t");
        QTRY_COMPARE(treeLines("BlockTree").size(), 5);
        QTRY_VERIFY(loadingImage()->isHidden());
        auto *right = child<TFRightContainer>();

        emit right->sigSectorNumChanged(QString("3"), QString("沪深"));

        const auto *tree = child<TFSubjectTreeWidget>("BlockTree");
        QVERIFY(!tree->isHidden());
        QCOMPARE(tree->view()->rootIndex().data().toString(), QString("沪深"));
        QCOMPARE(treeLines("BlockTree"),
                 QStringList({"沪深", "  上海", "  [x] 深圳", "    [x] GEM", "其他"}));
        const auto *context = TFAncestors::find<ITFPageContext>(right, "TFSubjectMainFrame");
        QVERIFY(context);
        QCOMPARE(context->blockFilter().value.toJsonArray().size(), 2);
    }

    void secondInitBuildsNothingAgain()
    {
        open("pnodecode=2&nodecode=11&title=t");
        QTRY_COMPARE(requestLines(), QString("38:2, 390:, 43:, view 260 flag 0"));

        open("pnodecode=2&nodecode=11&title=t");

        // The view is open already and is not requested again.
        QTRY_COMPARE(requestLines(), QString("38:2, 38:2, 390:, 390:, 43:, 43:, view 260 flag 0"));
        QCOMPARE(m_page->findChildren<TFRightContainer *>().size(), 1);
        QCOMPARE(m_page->findChildren<TFWebView *>().size(), 1);
    }

private:
    template <typename T> T *child(const QString &name = {}) const { return m_page->findChild<T *>(name); }

    QLabel *loadingImage() const
    {
        return child<TFSubjectMainFrame>()->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    }

    QStringList treeLines(const QString &tree) const
    {
        const auto *widget = child<TFSubjectTreeWidget>(tree);
        return widget && widget->view()->model() ? TreeText::lines(*widget->view()->model()) : QStringList();
    }

    /// What was asked for: the number of a data object with its root, or a view with its flag.
    QString requestLines() const
    {
        QStringList lines;
        for (const TestService::Request &request : m_service->requests()) {
            const QJsonObject &body = request.body;
            const auto text = [&body](const char *key) { return body[key].toVariant().toString(); };
            lines << (body.contains("objId") ? text("objId") + ':' + text("P_NODE_CODE")
                                             : "view " + text("obj_vw_id") + " flag " + text("flag"));
        }
        lines.sort();
        return lines.join(", ");
    }

    void open(const QString &query) { m_page->init(QUrl("view://subjectpage?" + query), QVariant()); }

    std::unique_ptr<TestService> m_service;
    std::unique_ptr<TFSubjectPage> m_page;
    QJsonValue m_navigation;
};

SUBJECT_TEST_MAIN(TestPage)
#include "tst_page.moc"
