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
constexpr int kChanges = 3;

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
    void childChartsDrawTheMainTablesRowsAndGoWithThePage();
};

void TestChartChildren::childChartsDrawTheMainTablesRowsAndGoWithThePage()
{
    allowWarnings(".*"); // the web engine's own
    PageService service;
    const TestHost host(&service);
    ViewDocument main, other;
    main.properties = {{"isOrder", "1"}};
    other.id = kOtherPage;
    for (int id = kFirstChart; id < kFirstChart + kCharts; ++id) {
        main.children.append({id, "图"});
        service.answer({{}, 0, id},
                       PageService::data(ChartJson::document(kChart, {}, {{"isgetchartdata", "0"}})));
    }
    for (const ViewDocument &document : {main, other}) {
        service.answer({{}, 0, document.id}, PageService::data(document.config()));
        service.answer({{}, 1, document.id}, PageService::data(document.rows(0, 3, 3)));
    }
    TFRightContainer page;
    page.resize(900, 700);
    page.show();

    const QString script = "option.xAxis.data.join() + ' ' + option.series.map(s => s.data.join()).join(';')";
    int open = 0;
    for (int i = 0; i < kChanges; ++i) {
        page.refreshPage(kTablePage, "图");
        QTRY_COMPARE(webViews(), kCharts);
        for (TFMultiCharts *chart : page.childViews()->findChildren<TFMultiCharts *>()) {
            QTRY_VERIFY_WITH_TIMEOUT(chart->isPageReady(), kStartMs);
            QTRY_COMPARE(askPage(chart->webView()->page(), script).toString(),
                         QString("CODE0,CODE1,CODE2 0,1,2"));
        }
        open = descendants();
        page.refreshPage(kOtherPage, "表");
        QCOMPARE(webViews(), 0);
    }
    QVERIFY(service.requestsFor({{}, 1, kFirstChart}).isEmpty());
    // The charts' renderer ends some time after the last of their pages.
    QTRY_VERIFY_WITH_TIMEOUT(descendants() < open, kStartMs);
}

SUBJECT_TEST_MAIN(TestChartChildren)
#include "tst_chartchildren.moc"
