#include "activitymodels.h"
#include "activitypanel.h"
#include "demodata.h"
#include "mainactions.h"
#include "mainwindow.h"
#include "noticebar.h"
#include "options.h"
#include "pagetab.h"
#include "pagetabs.h"
#include "terminal.h"
#include "tfcore/invokerbase.h"
#include "tfcore/tfcore.h"

#include "subjecttest.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTemporaryDir>

namespace {
constexpr int PatienceMs = 20000;
const char Home[] = "view://subjectpage?pnodecode=2&nodecode=&objvwid=260&title=股票专题";

/// Rows of the fullest table on \a page.
int rowsOn(const QWidget *page)
{
    int rows = 0;
    const QList<QAbstractItemModel *> models = page->findChildren<QAbstractItemModel *>();
    for (const QAbstractItemModel *model : models) {
        if (model->inherits("TFSubjectTableModel"))
            rows = qMax(rows, model->rowCount());
    }
    return rows;
}

void trigger(QActionGroup *group, const QString &data)
{
    for (QAction *action : group->actions()) {
        if (action->data().toString() == data)
            return action->trigger();
    }
    QFAIL(qPrintable("no choice " + data));
}
} // namespace

class TerminalTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(DemoData::isThere(), "tools/demo-data makes the demonstration database"); }

    void init()
    {
        m_config = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", m_config->path().toUtf8());
        beginMessages();
        allowWarnings("setTabOrder|frozen count");
        m_options = Options();
        m_options.database = DemoData::database();
        m_options.views = DemoData::views();
        start();
    }

    void cleanup()
    {
        stop();
        endMessages();
    }

    void homePageShowsRowsThatCameFromTheService()
    {
        QTRY_VERIFY_WITH_TIMEOUT(tabs().count() == 1 && rowsOn(tabs().current()) > 50, PatienceMs);
        QCOMPARE(tabs().current()->url(), QUrl(Home));
        QCOMPARE(tabs().findChild<QTabWidget *>("PageTabs")->tabText(0), QString("股票专题"));
        QVERIFY(!tabs().current()->icon().isNull());
        QVERIFY(window().activity().requests().rowCount() >= 4);
        QCOMPARE(window().activity().requests().failures(), 0);
        QVERIFY2(!window().notice().isVisible(), qPrintable(window().notice().text()));
    }

    void pagesOpenByTheWindowsNameAndCloseWithRequestsOut()
    {
        QTRY_COMPARE_WITH_TIMEOUT(tabs().count(), 1, PatienceMs);
        QString url = "view://subjectpage?objvwid=260&title=second";
        QVERIFY(
            InvokerBase().bind("QString", &url).invoke(TFCore::instance()->mainWindow(), "openStringUrl"));
        QCOMPARE(tabs().count(), 2);
        QCOMPARE(tabs().current()->title(), QString("second"));
        for (int i = 0; i < 2; ++i)
            tabs().closeCurrent();
        QCOMPARE(tabs().count(), 0);

        window().actions().newTab->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(rowsOn(tabs().current()) > 50, PatienceMs);
    }

    void skinAndLanguageChangeAtOnceAndAreKept()
    {
        QTRY_COMPARE_WITH_TIMEOUT(tabs().count(), 1, PatienceMs);
        const QWidget *page = tabs().current()->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        const QString before = page->styleSheet();
        const auto firstMenu = [this] { return window().menuBar()->actions().first()->text(); };
        QCOMPARE(firstMenu(), QString("页面(&P)"));

        trigger(window().actions().skins, "black");
        trigger(window().actions().languages, "en");

        QVERIFY(page->styleSheet() != before);
        QVERIFY(qApp->palette().color(QPalette::Window).lightness() < 40);
        QTRY_COMPARE(firstMenu(), QString("&Page"));
        stop();
        start();
        QCOMPARE(TFCore::instance()->getCurrentSkinId(), QString("black"));
        QCOMPARE(firstMenu(), QString("&Page"));
    }

    void serviceThatCannotStartIsALineInTheWindow()
    {
        stop();
        m_options.database = "/none.sqlite";
        expectWarning("/none.sqlite");
        start();
        QTRY_VERIFY(window().notice().isVisible());
        QVERIFY(window().notice().text().contains("/none.sqlite"));
        QCOMPARE(tabs().count(), 0);
    }

    void serviceThatIsNotThereLeavesFailedRequestsInThePanel()
    {
        stop();
        m_options.service = "http://127.0.0.1:1";
        allowWarnings("^no (navigation|block rows)");
        start();
        QTRY_VERIFY_WITH_TIMEOUT(window().activity().requests().failures() > 0, PatienceMs);
        QCOMPARE(tabs().count(), 1);
    }

private:
    MainWindow &window() { return m_terminal->window(); }
    PageTabs &tabs() { return window().tabs(); }

    void start()
    {
        m_terminal = std::make_unique<Terminal>(m_options);
        m_terminal->start();
    }

    void stop()
    {
        if (!m_terminal)
            return;
        window().close();
        QThreadPool::globalInstance()->waitForDone();
        m_terminal.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Options m_options;
    std::unique_ptr<QTemporaryDir> m_config;
    std::unique_ptr<Terminal> m_terminal;
};

SUBJECT_TEST_MAIN(TerminalTest)
#include "tst_terminal.moc"
