#include "subjecttest.h"

#include <QApplication>
#include <QTabWidget>
#include <QWebEngineView>

#include <algorithm>
#include <numeric>

#include "../page/viewdocument.h"
#include "chartjson.h"
#include "echarts/tfmulticharts.h"
#include "pagescript.h"
#include "pageservice.h"
#include "processes.h"
#include "testhost.h"
#include "tfrightcontainer.h"

namespace {
constexpr int kStartMs = 60000; ///< the web engine's first page on a busy machine
constexpr int kTablePage = 260;
constexpr int kOtherPage = 300;
constexpr int kFirstChart = 400;
constexpr int kCharts = 5;
constexpr int kWarmUp = 3;
constexpr int kChanges = 20;

const char kChart[] =
    "{'XFieldName':'CODE','XValueType':'String','XDisplayDataPattern':1,'ChartDataConfigs':["
    "{'FieldName':'PRICE','LegendLable':'p','ChartType':'Line','IsVisible':true}]}";

int webViews()
{
    const QWidgetList widgets = QApplication::allWidgets();
    return int(std::count_if(widgets.begin(), widgets.end(),
                             [](QWidget *widget) { return qobject_cast<QWebEngineView *>(widget); }));
}

/// The processes that \a process started, and theirs: the renderers of the web views among them.
int descendants(qint64 process = QCoreApplication::applicationPid())
{
    const QList<qint64> children = Processes::children(process);
    return std::accumulate(children.begin(), children.end(), int(children.size()),
                           [](int count, qint64 child) { return count + descendants(child); });
}
} // namespace

class TestChartChildren : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void childChartsDrawTheMainTablesRowsAndGoWithThePage();

private:
    void servePage(const ViewDocument &document);
    void openCharts();
    QList<TFMultiCharts *> charts() const { return m_page->childViews()->findChildren<TFMultiCharts *>(); }

    std::unique_ptr<PageService> m_service;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TFRightContainer> m_page;
};

void TestChartChildren::init()
{
    beginMessages();
    allowWarnings(".*"); // the web engine's own
    m_service = std::make_unique<PageService>();
    m_host = std::make_unique<TestHost>(m_service.get());
    ViewDocument main;
    main.properties = {{"isOrder", "1"}};
    for (int id = kFirstChart; id < kFirstChart + kCharts; ++id) {
        main.children.append({id, "图"});
        m_service->answer({{}, 0, id},
                          PageService::data(ChartJson::document(kChart, {}, {{"isgetchartdata", "0"}})));
    }
    servePage(main);
    ViewDocument other;
    other.id = kOtherPage;
    servePage(other);
    m_page = std::make_unique<TFRightContainer>();
    m_page->resize(900, 700);
    m_page->show();
}

void TestChartChildren::cleanup()
{
    m_page.reset();
    m_host.reset();
    m_service.reset();
    endMessages();
}

void TestChartChildren::servePage(const ViewDocument &document)
{
    m_service->answer({{}, 0, document.id}, PageService::data(document.config()));
    m_service->answer({{}, 1, document.id}, PageService::data(document.rows(0, 3, 3)));
}

void TestChartChildren::openCharts()
{
    const auto areReady = [this] {
        const QList<TFMultiCharts *> all = charts();
        return all.size() == kCharts &&
               std::all_of(all.begin(), all.end(), [](TFMultiCharts *chart) { return chart->isPageReady(); });
    };
    m_page->refreshPage(kTablePage, "图");
    QTRY_VERIFY_WITH_TIMEOUT(areReady(), kStartMs);
}

void TestChartChildren::childChartsDrawTheMainTablesRowsAndGoWithThePage()
{
    openCharts();
    const QString script = "option.xAxis.data.join() + ' ' + option.series.map(s => s.data.join()).join(';')";
    const QList<TFMultiCharts *> all = charts();
    for (TFMultiCharts *chart : all)
        QTRY_COMPARE(askPage(chart->webView()->page(), script).toString(),
                     QString("CODE0,CODE1,CODE2 0,1,2"));
    QVERIFY(m_service->requestsFor({{}, 1, kFirstChart}).isEmpty());

    int atMost = 0;
    for (int i = 0; i < kChanges; ++i) {
        openCharts();
        QCOMPARE(webViews(), kCharts);
        atMost = qMax(atMost, i < kWarmUp ? descendants() : 0);
        m_page->refreshPage(kOtherPage, "表");
        QCOMPARE(webViews(), 0);
    }
    // Renderers end some time after their views; views that stayed would have added theirs at each change.
    QTRY_VERIFY_WITH_TIMEOUT(descendants() <= atMost, kStartMs);
}

SUBJECT_TEST_MAIN(TestChartChildren)
#include "tst_chartchildren.moc"
