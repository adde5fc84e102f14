#include "subjecttest.h"

#include <QStackedWidget>
#include <QTreeView>

#include "pageservice.h"
#include "testhost.h"
#include "tfbaseview.h"
#include "tfcore/tfserviceconfig.h"
#include "tfcore/tfwebview.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"
#include "tfsubjectpage.h"
#include "tfsubjecttreewidget.h"
#include "treetext.h"
#include "viewdocument.h"

/// Pages with a web page or a chart on them.
class TestPageWeb : public SubjectTest
{
    Q_OBJECT

private slots:
    void nodeWithAnAddressShowsTheWebPageAndKeepsIt()
    {
        allowWarnings(".*"); // the web engine's own
        TestService service;
        TFServiceConfig::instance()->setHttpUrl("servercfg.ini:Subject", service.url());
        const QString address = service.url().toString() + "/page.html";
        const QJsonArray rows{TreeText::node(1, 5, "网站", 1, 0, address),
                              TreeText::node(2, 5, "数据", 1, 200)};
        service.setRule([rows](const TestService::Request &request) {
            TestService::Answer answer{TestService::envelope(rows)};
            if (request.path == "/page.html") {
                answer.text = "<title>here</title>";
                answer.headers = {"Content-Type: text/html"};
            } else if (request.path == "/bas/subject/data") {
                answer.text = "{}";
            }
            return answer;
        });
        TFSubjectPage page;
        page.resize(800, 600);
        page.show();

        page.init(QUrl("view://subjectpage?pnodecode=5&nodecode=1&title=t"), QVariant());

        auto *stack = page.findChild<QStackedWidget *>("rightContainer");
        auto *web = page.findChild<TFWebView *>();
        QTRY_COMPARE_WITH_TIMEOUT(web->title(), QString("here"), 30000);
        QCOMPARE(stack->currentIndex(), 1);

        QTreeView *tree = page.findChild<TFSubjectTreeWidget *>("SubjectTree")->view();
        emit tree->clicked(tree->model()->index(1, 0));
        QCOMPARE(stack->currentIndex(), 0);
        QCOMPARE(web->title(), QString("here"));
    }

    void chartsAskForAllTheirRowsAndTheTableComesBack()
    {
        allowWarnings(".*"); // the web engine's own
        PageService service;
        const TestHost host(&service);
        ViewDocument table;
        table.children = {{400, "图"}};
        ViewDocument chart;
        chart.properties = {{"ObjViewType", "ViewDataChart"}, {"isgetchartdata", "1"}};
        for (const qint64 id : {260, 400, 500}) {
            const ViewDocument &document = id == 260 ? table : chart;
            service.answer({{}, 0, id}, PageService::data(document.config()));
            service.answer({{}, 1, id}, PageService::data(document.rows(0, 3, 3)));
        }
        TFRightContainer page;
        const auto show = [&page](qint64 id, int kind) {
            const auto top = [&page] { return page.mainView()->currentView(); };
            page.refreshPage(id, "页");
            return QTest::qWaitFor([&] { return top() && top()->viewKind() == kind; }, 30000);
        };

        QVERIFY(show(260, TFBaseView::TableView));
        TFBaseView *first = page.mainView()->currentView();
        QTRY_VERIFY(!service.requestsFor({{}, 1, 400}).isEmpty());
        QVERIFY(!service.requestsFor({{}, 1, 400}).first().body.contains("page"));

        QVERIFY(show(500, TFBaseView::ChartView));
        QTRY_VERIFY(!service.requestsFor({{}, 1, 500}).isEmpty());

        QVERIFY(show(260, TFBaseView::TableView));
        QCOMPARE(page.mainView()->currentView(), first);
        QCOMPARE(page.mainView()->count(), 2);
    }
};

SUBJECT_TEST_MAIN(TestPageWeb)
#include "tst_pageweb.moc"
