#include "pageservice.h"
#include "subjecttest.h"
#include "testhost.h"
#include "viewdocument.h"

#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfsujecttableview.h"
#include "tfbaseview.h"
#include "tfchartview.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"
#include "tfsubjecttablewidget.h"
#include "tfviewfactory.h"

#include <gridcontrol/grid.h>

#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>

#include <memory>

/// The data page against a service: main view, child tabs, and the row that drives them.
class RightContainerTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pageWithoutChildrenHidesTheTabs();
    void announcedChildrenBecomeTabs();
    void firstRowAndClickedRowFilterTheChildren();
    void orderedMainTableStartsWithTheLastTab();
    void failedChildConfigurationKeepsTheMainTableWaiting();
    void childThatFailsKeepsItsState_data();
    void childThatFailsKeepsItsState();
    void staleAnnouncementsAreDropped();
    void nextPageOfTheSameKindUsesTheTableAgain();
    void failedPageLeavesTheStackEmpty_data();
    void failedPageLeavesTheStackEmpty();
    void replyForALeftPageShowsNoData();
    void quickSwitchesEndInAPageThatWorks();
    void repliesAfterTheContainerIsGoneAreLost();
    void kindOfAViewIsThatOfItsConfiguration_data();
    void kindOfAViewIsThatOfItsConfiguration();
    void cornerButtonFoldsTheTabs();
    void hiddenViewsGiveUpTheirHeight();

private:
    void serve(const ViewDocument &document, int rows = 3);
    void serveFamily(const QMap<QString, QString> &properties = {});
    void open(qint64 id) { m_page->refreshPage(id, QString("页%1").arg(id)); }
    QString firstRow(const TFSubjectTableWidget *table) const;
    TFSubjectTableWidget *main() const
    {
        return qobject_cast<TFSubjectTableWidget *>(m_page->mainView()->currentView());
    }
    TFSubjectTableWidget *child(int index) const
    {
        return qobject_cast<TFSubjectTableWidget *>(m_page->childViews()->widget(index));
    }
    QString stateOf(const TFSubjectTableWidget *table) const
    {
        return table ? table->findChild<QLabel *>("TimeSpendLabel")->text() : QString();
    }
    QString tabs() const;
    QStringList filtersAsked(qint64 id) const;

    std::unique_ptr<PageService> m_service;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TFRightContainer> m_page;
};

void RightContainerTest::init()
{
    beginMessages();
    allowWarnings("^frozen count is invaild: 0$");
    m_service = std::make_unique<PageService>();
    m_host = std::make_unique<TestHost>(m_service.get());
    m_page = std::make_unique<TFRightContainer>();
    m_page->resize(900, 700);
    m_page->show();
}

void RightContainerTest::cleanup()
{
    m_page.reset();
    m_service.reset();
    m_host.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    endMessages();
}

void RightContainerTest::serve(const ViewDocument &document, int rows)
{
    m_service->answer({{}, 0, document.id}, PageService::data(document.config()));
    m_service->answer({{}, 1, document.id}, PageService::data(document.rows(0, rows, rows)));
}

void RightContainerTest::serveFamily(const QMap<QString, QString> &properties)
{
    ViewDocument parent;
    parent.properties = properties;
    parent.children = {{261, "甲", "V.CODE=数据源.SECU"}, {262, "乙", ""}};
    ViewDocument child;
    child.filters = {
        QJsonObject{{"FieldName", "SECU"}, {"Operator", "="}, {"ClassName", "X"}, {"DefualtValue", "dft"}}};
    child.id = 261;
    child.name = "十个字的子视图名称啊";
    ViewDocument second = child;
    second.id = 262;
    second.name = "十一个字的子视图名称啊";
    serve(parent);
    serve(child);
    serve(second);
}

QString RightContainerTest::firstRow(const TFSubjectTableWidget *table) const
{
    const TFSubjectTableModel *model = table ? table->model() : nullptr;
    return model && model->rowCount() > 0 ? model->index(0, 0).data().toString() : QString();
}

QString RightContainerTest::tabs() const
{
    QStringList texts;
    for (int i = 0; i < m_page->childViews()->count(); ++i)
        texts.append(m_page->childViews()->tabText(i) + '=' + m_page->childViews()->tabToolTip(i));
    texts.sort();
    return texts.join(", ");
}

QStringList RightContainerTest::filtersAsked(qint64 id) const
{
    QStringList asked;
    for (const PageService::Request &request : m_service->requestsFor({{}, 1, id})) {
        const QByteArray values =
            QJsonDocument(request.body.value("filterParams").toObject()).toJson(QJsonDocument::Compact);
        asked.append(request.body.value("filter").toString() + QString::fromUtf8(values));
    }
    return asked;
}

void RightContainerTest::pageWithoutChildrenHidesTheTabs()
{
    serve(ViewDocument());
    QSignalSpy changed(m_page.get(), &TFRightContainer::signalDataChanged);

    open(260);

    QTRY_COMPARE(firstRow(main()), QString("CODE0"));
    QVERIFY(m_page->childViews()->isHidden());
    QCOMPARE(m_page->windowTitle(), QString("页260"));
    QCOMPARE(m_page->findChild<QLabel *>("subjectTitle")->text(), QString("页260"));
    QCOMPARE(m_page->currentView(), qint64(260));
    QCOMPARE(changed.size(), 1);
    m_page->setChildViewsVisible(true);
    QVERIFY(m_page->childViews()->isHidden());
}

void RightContainerTest::announcedChildrenBecomeTabs()
{
    serveFamily();

    open(260);

    QTRY_COMPARE(
        tabs(),
        QString("十一个字的子视图名称...=十一个字的子视图名称啊, 十个字的子视图名称啊=十个字的子视图名称啊"));
    QVERIFY(m_page->childViews()->isVisible());
    QCOMPARE(m_service->requestsFor({{}, 0, 261}).size(), 1);
    QTRY_COMPARE(firstRow(child(0)) + firstRow(child(1)), QString("CODE0CODE0"));
    QVERIFY(m_page->childViews()->widget(0)->signalsBlocked());
}

void RightContainerTest::firstRowAndClickedRowFilterTheChildren()
{
    serveFamily({{"isOrder", "1"}});
    open(260);
    QTRY_COMPARE(filtersAsked(261), QStringList{R"((SECU == :SECU){"SECU":"CODE0"})"});
    QTRY_COMPARE(filtersAsked(262), QStringList{R"((SECU == :SECU){"SECU":"dft"})"});

    main()->grid()->grid()->rootView()->setFocusRow(2);

    QTRY_COMPARE(filtersAsked(261).value(1), QString(R"((SECU == :SECU){"SECU":"CODE2"})"));
    const QJsonObject body = m_service->requestsFor({{}, 1, 261}).last().body;
    QCOMPARE(body.value("page").toInt() * 1000 + body.value("size").toInt(), 1200);
    QTRY_COMPARE(firstRow(child(0)), QString("CODE0"));
}

void RightContainerTest::orderedMainTableStartsWithTheLastTab()
{
    serveFamily({{"isOrder", "1"}});

    open(260);

    QTRY_COMPARE(firstRow(main()), QString("CODE0"));
    QStringList order;
    for (const PageService::Request &request : m_service->requests())
        order.append(QString("%1/%2")
                         .arg(request.body.value("obj_vw_id").toInt())
                         .arg(request.body.value("flag").toInt()));
    QVERIFY2(order.indexOf("260/1") > order.indexOf("261/0") &&
                 order.indexOf("260/1") > order.indexOf("262/0"),
             qPrintable(order.join(' ')));
    QCOMPARE(order.count("260/1"), 1);
}

void RightContainerTest::failedChildConfigurationKeepsTheMainTableWaiting()
{
    serveFamily({{"isOrder", "1"}});
    m_service->answer({{}, 0, 262}, PageService::failure());

    open(260);

    QTRY_COMPARE(m_page->childViews()->count(), 1);
    QTRY_COMPARE(debugLines().filter("emitResult:").size(), 3);
    QCOMPARE(m_service->requestsFor({{}, 1, 260}).size(), 0);
    QVERIFY(stateOf(main()).startsWith("加载中"));
}

void RightContainerTest::childThatFailsKeepsItsState_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("state");
    testRow("network", 500, "加载中");
    testRow("envelope", 200, "无数据!");
}

void RightContainerTest::childThatFailsKeepsItsState()
{
    QFETCH(int, status);
    QFETCH(QString, state);
    serveFamily({{"isOrder", "1"}});
    PageService::Answer answer;
    answer.status = status;
    answer.text = "{}";
    m_service->answer({{}, 1, 261}, answer);
    m_service->answer({{}, 1, 262}, answer);

    open(260);

    QTRY_COMPARE(debugLines().filter("emitResult:").size(), 6);
    QTRY_VERIFY(stateOf(child(0)).startsWith(state) && stateOf(child(1)).startsWith(state));
}

void RightContainerTest::staleAnnouncementsAreDropped()
{
    serve(ViewDocument());
    open(260);
    QTRY_COMPARE(firstRow(main()), QString("CODE0"));

    emit m_page->mainView()->signalGetSubViewCfg(261, "甲", 999);
    m_page->createSubWidgets(261, ViewDocument().config());
    m_page->createSubWidgets(261, QJsonValue());
    QCOMPARE(m_page->childViews()->count(), 0);

    emit m_page->mainView()->signalGetSubViewCfg(261, "甲", 260);
    emit m_page->mainView()->signalGetSubViewCfg(261, "甲", 260);
    QTRY_COMPARE(m_service->requestsFor({{}, 0, 261}).size(), 1);
    QTRY_COMPARE(debugLines().filter("emitResult:").size(), 3);
    QCOMPARE(m_service->requestsFor({{}, 0, 261}).size(), 1);
}

void RightContainerTest::nextPageOfTheSameKindUsesTheTableAgain()
{
    serveFamily();
    ViewDocument other;
    other.id = 300;
    other.name = "别的";
    serve(other, 1);
    open(260);
    QTRY_COMPARE(m_page->childViews()->count(), 2);
    QTRY_COMPARE(firstRow(child(1)), QString("CODE0"));
    const QPointer<TFSubjectTableWidget> table = main();
    const QPointer<QWidget> tab = child(0);

    open(300);

    QVERIFY2(tab.isNull(), "tabs of the page before are gone at once");
    QTRY_COMPARE(main()->total(), 1);
    QCOMPARE(main(), table.data());
    QCOMPARE(main()->caption(), QString("别的"));
    QCOMPARE(m_page->mainView()->currentViewId(), qint64(300));
    QVERIFY(m_page->childViews()->isHidden());
}

void RightContainerTest::failedPageLeavesTheStackEmpty_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("warning");
    testRow("not found", QByteArray(), "");
    testRow("no envelope", QByteArray("{}"), "");
    testRow("no JSON", QByteArray("<html>"), "respone is not json obj:");
}

void RightContainerTest::failedPageLeavesTheStackEmpty()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, warning);
    PageService::Answer answer;
    answer.text = body;
    if (!body.isEmpty())
        m_service->answer({}, answer);
    if (!warning.isEmpty())
        expectWarning(warning);

    open(260);

    QTRY_COMPARE(debugLines().filter("emitResult:").size(), 1);
    QCoreApplication::processEvents();
    QVERIFY(!m_page->mainView()->currentView());
    QCOMPARE(m_page->mainView()->currentViewId(), qint64(-1));
    QVERIFY(m_page->mainView()->allRows().isEmpty());
}

void RightContainerTest::replyForALeftPageShowsNoData()
{
    serve(ViewDocument());
    m_service->answer({{}, 1, 260}, PageService::held(PageService::data(ViewDocument().rows(0, 3, 3))));
    open(260);
    QTRY_COMPARE(m_service->heldCount(), 1);

    m_service->answer({{}, 0, 300}, PageService::held(PageService::failure()));
    open(300);
    main()->setViewId(260);
    m_service->release();

    QTRY_COMPARE(stateOf(main()), QString("无数据!"));
    QCOMPARE(firstRow(main()), QString());
}

void RightContainerTest::quickSwitchesEndInAPageThatWorks()
{
    serveFamily();
    ViewDocument other;
    other.id = 300;
    other.fields = {{"X"}, {"Y", "Decimal"}};
    other.children = {{261, "甲", "V.X=数据源.SECU"}};
    serve(other);
    for (int flag : {0, 1}) {
        for (int id : {260, 261, 262, 300}) {
            ViewDocument document;
            const PageService::Answer ready =
                flag ? PageService::data((id == 300 ? other : document).rows(0, 3, 3))
                     : PageService::data((id == 300 ? other : document).config());
            m_service->answer({{}, flag, id}, [ready](const PageService::Request &) {
                PageService::Answer answer = ready;
                answer.delay = int(QRandomGenerator::global()->bounded(20));
                return answer;
            });
        }
    }

    for (int i = 0; i < 50; ++i) {
        open(i % 2 ? 300 : 260);
        QTest::qWait(i % 7);
    }
    QTRY_VERIFY(QThreadPool::globalInstance()->activeThreadCount() == 0);
    QCoreApplication::processEvents();
    open(300);

    QTRY_COMPARE(firstRow(main()), QString("X0"));
    QCOMPARE(m_page->mainView()->currentViewId(), qint64(300));
    QCOMPARE(m_page->windowTitle(), QString("页300"));
}

void RightContainerTest::repliesAfterTheContainerIsGoneAreLost()
{
    serveFamily();
    m_service->answer({{}, 0, 261}, PageService::held(PageService::data(ViewDocument().config())));
    m_service->answer({{}, 1, 260}, PageService::held(PageService::data(ViewDocument().rows(0, 3, 3))));
    open(260);
    QTRY_COMPARE(m_service->heldCount(), 2);

    m_page.reset();
    m_service->release();
    m_service->release();

    QTRY_COMPARE(QThreadPool::globalInstance()->activeThreadCount(), 0);
    QCoreApplication::processEvents();
}

void RightContainerTest::kindOfAViewIsThatOfItsConfiguration_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("kind");
    testRow("chart", "ViewDataChart", 1);
    testRow("compared with case", "viewdatachart", 0);
    testRow("none", "", 0);
}

void RightContainerTest::kindOfAViewIsThatOfItsConfiguration()
{
    QFETCH(QString, type);
    ViewDocument document;
    document.properties = {{"ObjViewType", type}};

    QTEST(TFMainView::viewKind(document.config()), "kind");
    QCOMPARE(TFMainView::viewKind(QJsonValue()), 0);
    QVERIFY(!TFViewFactory::create(7, 260, document.config(), m_page.get(), false));
}

void RightContainerTest::cornerButtonFoldsTheTabs()
{
    serveFamily();
    open(260);
    QTRY_COMPARE(m_page->childViews()->count(), 2);
    QTabWidget *tabs = m_page->childViews();
    auto *corner = m_page->findChild<QPushButton *>("cornerButton");

    corner->click();
    QTRY_COMPARE(tabs->height(), tabs->tabBar()->height());

    corner->click();
    QCOMPARE(tabs->minimumHeight(), 5 * tabs->tabBar()->height());
    QCOMPARE(tabs->maximumHeight(), QWIDGETSIZE_MAX);
}

void RightContainerTest::hiddenViewsGiveUpTheirHeight()
{
    serveFamily();
    open(260);
    QTRY_COMPARE(m_page->childViews()->count(), 2);
    auto *splitter = m_page->findChild<QSplitter *>("Splitter");

    m_page->setChildViewsVisible(false);
    QVERIFY(m_page->childViews()->isHidden());
    QCOMPARE(splitter->sizes().at(1), 0);

    m_page->setChildViewsVisible(true);
    m_page->setMainViewVisible(false);
    QVERIFY(splitter->sizes().at(0) < splitter->sizes().at(1));
}

SUBJECT_TEST_MAIN(RightContainerTest)
#include "test_rightcontainer.moc"
