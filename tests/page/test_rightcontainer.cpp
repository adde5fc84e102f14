#include "pageservice.h"
#include "subjecttest.h"
#include "testhost.h"
#include "viewdocument.h"

#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfsujecttableview.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"
#include "tfsubjecttablewidget.h"

#include <gridcontrol/grid.h>

#include <QLabel>
#include <QPushButton>
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
    void init()
    {
        beginMessages();
        allowWarnings("^frozen count is invaild: 0$");
        m_service = std::make_unique<PageService>();
        m_host = std::make_unique<TestHost>(m_service.get());
        m_page = std::make_unique<TFRightContainer>();
        m_page->resize(900, 700);
        m_page->show();
    }

    void cleanup()
    {
        m_page.reset();
        m_service.reset();
        m_host.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        endMessages();
    }

    void pageWithoutChildrenHidesTheTabs()
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

    void orderedMainTableStartsWithTheLastTab()
    {
        serveFamily({{"isOrder", "1"}});

        open(260);

        QTRY_COMPARE(tabs(), QString("十一个字的子视图名称...=十一个字的子视图名称啊, "
                                     "十个字的子视图名称啊=十个字的子视图名称啊"));
        QVERIFY(m_page->childViews()->isVisible());
        QVERIFY(m_page->childViews()->widget(0)->signalsBlocked());
        QTRY_COMPARE(firstRow(main()), QString("CODE0"));
        QStringList order;
        for (const PageService::Request &request : m_service->requests().mid(0, 4))
            order.append(QString("%1/%2")
                             .arg(request.body.value("obj_vw_id").toInt())
                             .arg(request.body.value("flag").toInt()));
        std::sort(order.begin() + 1, order.begin() + 3);
        QCOMPARE(order.join(' '), QString("260/0 261/0 262/0 260/1"));
        QCOMPARE(m_service->requestsFor({{}, 1, 260}).size(), 1);
    }

    void firstRowAndClickedRowFilterTheChildren()
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

        emit m_page->mainView()->clearChildren();
        QCOMPARE(firstRow(child(0)), QString());
    }

    void crossChildAsksForTheWholeSet()
    {
        ViewDocument parent;
        parent.children = {{263, "丙"}};
        ViewDocument cross;
        cross.id = 263;
        cross.properties = {{"IsCross", "1"}};
        serve(parent);
        serve(cross);

        open(260);

        QTRY_VERIFY(!m_service->requestsFor({{}, 2, 263}).isEmpty());
        QVERIFY(!m_service->requestsFor({{}, 2, 263}).first().body.contains("page"));
    }

    void failedChildConfigurationKeepsTheMainTableWaiting()
    {
        serveFamily({{"isOrder", "1"}});
        m_service->answer({{}, 0, 262}, PageService::failure());

        open(260);

        QTRY_COMPARE(m_page->childViews()->count(), 1);
        QTRY_COMPARE(debugLines().filter("emitResult:").size(), 3);
        QCOMPARE(m_service->requestsFor({{}, 1, 260}).size(), 0);
        QVERIFY(stateOf(main()).startsWith("加载中"));
    }

    void childThatFailsKeepsItsState()
    {
        serveFamily({{"isOrder", "1"}});
        m_service->answer({{}, 1, 261}, PageService::failure());
        m_service->answer({{}, 1, 262}, PageService::Answer{"{}"});

        open(260);

        const auto stateOfChild = [this](qint64 id) {
            return stateOf(child(child(0)->viewId() == id ? 0 : 1));
        };
        QTRY_COMPARE(debugLines().filter("emitResult:").size(), 6);
        QTRY_COMPARE(stateOfChild(262), QString("无数据!"));
        QVERIFY(stateOfChild(261).startsWith("加载中"));
    }

    void staleAnnouncementsAreDropped()
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
        QTRY_COMPARE(debugLines().filter("emitResult:").size(), 3);
        QCOMPARE(m_service->requestsFor({{}, 0, 261}).size(), 1);
    }

    void nextPageOfTheSameKindUsesTheTableAgain()
    {
        serveFamily();
        ViewDocument other;
        other.id = 300;
        other.name = "别的";
        other.children = {{261, "甲"}};
        serve(other, 1);
        open(260);
        QTRY_COMPARE(m_page->childViews()->count(), 2);
        QTRY_COMPARE(firstRow(child(1)), QString("CODE0"));
        const QPointer<TFSubjectTableWidget> table = main();
        const QPointer<QWidget> tab = child(0);

        open(300);

        QVERIFY2(tab.isNull(), "tabs of the page before are gone at once");
        QVERIFY(m_page->childViews()->isHidden());
        QCOMPARE(firstRow(table), QString());
        QTRY_COMPARE(main()->total(), 1);
        QCOMPARE(main(), table.data());
        QCOMPARE(main()->caption(), QString("别的"));
        QCOMPARE(m_page->mainView()->currentViewId(), qint64(300));
        QTRY_COMPARE(m_page->childViews()->count(), 1);

        open(999);
        QVERIFY(stateOf(main()).startsWith("加载中"));
        QTRY_VERIFY(stateOf(main()).startsWith("耗时"));
    }

    void failedPageLeavesTheStackEmpty()
    {
        for (const PageService::Answer &answer : {PageService::failure(), PageService::Answer{"{}"}}) {
            m_service->answer({}, answer);
            const int results = debugLines().filter("emitResult:").size();

            open(260);

            QTRY_COMPARE(debugLines().filter("emitResult:").size(), results + 1);
            QCoreApplication::processEvents();
            QVERIFY(!m_page->mainView()->currentView());
            QCOMPARE(m_page->mainView()->currentViewId(), qint64(-1));
            QVERIFY(m_page->mainView()->allRows().isEmpty());
        }
    }

    void replyForALeftPageShowsNoData()
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

    void quickSwitchesEndInAPageThatWorks()
    {
        // The replies for one page come so late that the other is open by then.
        serveFamily();
        ViewDocument other;
        other.id = 300;
        other.fields = {{"X"}, {"Y", "Decimal"}};
        other.children = {{261, "甲", "V.X=数据源.SECU"}};
        serve(other, 3, 10);

        for (int i = 0; i < 50; ++i) {
            open(i % 2 ? 300 : 260);
            QTest::qWait(i % 7);
        }
        QTRY_COMPARE(QThreadPool::globalInstance()->activeThreadCount(), 0);
        QCoreApplication::processEvents();
        open(300);

        QTRY_COMPARE(firstRow(main()), QString("X0"));
        QCOMPARE(m_page->mainView()->currentViewId(), qint64(300));
        QCOMPARE(m_page->windowTitle(), QString("页300"));
    }

    void repliesAfterTheContainerIsGoneAreLost()
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

    void kindOfAViewIsThatOfItsConfiguration()
    {
        ViewDocument document;
        for (const char *type : {"ViewDataChart", "viewdatachart", ""}) {
            document.properties = {{"ObjViewType", type}};
            QCOMPARE(TFMainView::viewKind(document.config()), int(*type == 'V'));
        }
    }

    void tabsFoldAndHiddenViewsGiveUpTheirHeight()
    {
        serveFamily();
        open(260);
        QTRY_COMPARE(m_page->childViews()->count(), 2);
        QTabWidget *tabs = m_page->childViews();
        auto *splitter = m_page->findChild<QSplitter *>("Splitter");
        auto *corner = m_page->findChild<QPushButton *>("cornerButton");

        corner->click();
        QTRY_COMPARE(tabs->height(), tabs->tabBar()->height());

        corner->click();
        QCOMPARE(tabs->minimumHeight(), 5 * tabs->tabBar()->height());
        QCOMPARE(tabs->maximumHeight(), QWIDGETSIZE_MAX);

        m_page->setChildViewsVisible(false);
        QVERIFY(tabs->isHidden());
        QCOMPARE(splitter->sizes().at(1), 0);
        open(260);
        QTRY_COMPARE(tabs->count(), 2);
        QVERIFY(tabs->isHidden());

        m_page->setChildViewsVisible(true);
        m_page->setMainViewVisible(false);
        QVERIFY(splitter->sizes().at(0) < splitter->sizes().at(1));
    }

private:
    void serve(const ViewDocument &document, int rows = 3, int delay = 0)
    {
        for (const int flag : {0, 1}) {
            auto answer = PageService::data(flag ? document.rows(0, rows, rows) : document.config());
            answer.delay = delay;
            m_service->answer({{}, flag, document.id}, answer);
        }
    }

    void serveFamily(const QMap<QString, QString> &properties = {})
    {
        ViewDocument parent;
        parent.properties = properties;
        parent.children = {{261, "甲", "V.CODE=数据源.SECU"}, {262, "乙", ""}};
        ViewDocument child;
        child.filters = {QJsonObject{
            {"FieldName", "SECU"}, {"Operator", "="}, {"ClassName", "X"}, {"DefualtValue", "dft"}}};
        child.id = 261;
        child.name = "十个字的子视图名称啊";
        ViewDocument second = child;
        second.id = 262;
        second.name = "十一个字的子视图名称啊";
        for (const ViewDocument &document : {parent, child, second})
            serve(document);
    }

    void open(qint64 id) { m_page->refreshPage(id, QString("页%1").arg(id)); }

    QString firstRow(const TFSubjectTableWidget *table) const
    {
        const TFSubjectTableModel *model = table ? table->model() : nullptr;
        return model && model->rowCount() > 0 ? model->index(0, 0).data().toString() : QString();
    }

    TFSubjectTableWidget *main() const
    {
        return qobject_cast<TFSubjectTableWidget *>(m_page->mainView()->currentView());
    }

    TFSubjectTableWidget *child(int index) const
    {
        return qobject_cast<TFSubjectTableWidget *>(m_page->childViews()->widget(index));
    }

    QString stateOf(const TFSubjectTableWidget *table) const { return table ? table->status() : QString(); }

    QString tabs() const
    {
        QStringList texts;
        for (int i = 0; i < m_page->childViews()->count(); ++i)
            texts.append(m_page->childViews()->tabText(i) + '=' + m_page->childViews()->tabToolTip(i));
        texts.sort();
        return texts.join(", ");
    }

    QStringList filtersAsked(qint64 id) const
    {
        QStringList asked;
        for (const PageService::Request &request : m_service->requestsFor({{}, 1, id})) {
            const QJsonObject values = request.body.value("filterParams").toObject();
            asked.append(request.body.value("filter").toString() +
                         QJsonDocument(values).toJson(QJsonDocument::Compact));
        }
        return asked;
    }

    std::unique_ptr<PageService> m_service;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TFRightContainer> m_page;
};

SUBJECT_TEST_MAIN(RightContainerTest)
#include "test_rightcontainer.moc"
