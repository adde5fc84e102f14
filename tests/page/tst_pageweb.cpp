#include "subjecttest.h"

#include <QStackedWidget>
#include <QTreeView>

#include "testservice.h"
#include "tfcore/tfserviceconfig.h"
#include "tfcore/tfwebview.h"
#include "tfsubjectpage.h"
#include "tfsubjecttreewidget.h"
#include "treetext.h"

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
};

SUBJECT_TEST_MAIN(TestPageWeb)
#include "tst_pageweb.moc"
