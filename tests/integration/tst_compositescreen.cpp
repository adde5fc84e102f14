#include "loggedservice.h"
#include "mainwindow.h"
#include "options.h"
#include "pagesettler.h"
#include "screen/screencell.h"
#include "screen/screens.h"
#include "screen/screentab.h"
#include "screen/screenview.h"
#include "terminal.h"
#include "tfcore/invokerbase.h"
#include "tfcore/itfmemory.h"

#include "subjecttest.h"

#include <QComboBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QTimer>
#include <QTreeWidget>

namespace {
constexpr int PatienceMs = 30000;
enum View { Prices = 47811, History = 47813, Yearly = 47814 };

QVariantMap stateOf(int view, const QString &binder, const QVariantMap &own)
{
    return {{"version", "1.0.0"},      {"titleVisible", true},
            {"filterVisible", true},   {"mainViewVisible", true},
            {"subViewVisible", false}, {"pageBarVisible", false},
            {"objVwId", view},         {"title", "T"},
            {"objVwIdBinder", binder}, {"filterMap", own}};
}
} // namespace

/// A screen of three data pages of the real plug-in, over two runs of the terminal and the data service.
class CompositeScreenTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY2(DemoData::isThere(), "tools/demo-data makes the demonstration database");
        // The program finds the settings that this process left.
        QCoreApplication::setApplicationName("subject-terminal");
    }

    void screenComesBackAndAnArgumentReachesOnlyWhomItConcerns()
    {
        allowWarnings("frozen count");
        QTemporaryDir config;
        qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
        m_path = config.filePath("three.screen.json");
        buildAndSave();
        reopenInAnotherProcess();
        changeArguments();
    }

private:
    void buildAndSave()
    {
        LoggedService service;
        QVERIFY(service.start());
        const auto terminal = start(service, {m_path});
        QTRY_VERIFY_WITH_TIMEOUT(terminal->window().findChild<ScreenTab *>(), PatienceMs);
        ScreenTab *tab = terminal->window().findChild<ScreenTab *>();
        tab->arguments().setValues({{"CODE", "gold"}, {"view", QString("历史价格|%1").arg(History)}});
        ScreenCell *first = tab->view().add("TFFrameSubjectZHP");
        chooseView(first, "商品专题", "商品价格明细");
        QCOMPARE(first->component().state.value("objVwId").toInt(), int(Prices));
        configure(first, stateOf(Prices, "", {{"CODE", ""}, {"view", ""}}));
        add(tab, stateOf(Yearly, "", {}));
        ScreenCell *third = tab->view().add("TFFrameSubjectZHP", Qt::Vertical, first);
        configure(third, stateOf(1, "view", {{"CODE", "silver"}}));
        QTRY_COMPARE_WITH_TIMEOUT(service.rowRequests(Yearly).size(), 1, PatienceMs);
        stop(terminal.get());
    }

    void reopenInAnotherProcess()
    {
        LoggedService service;
        QVERIFY(service.start());
        QProcess program;
        program.start(PROJECT_BINARY_DIR "/bin/subject-terminal", {"--service", service.address()});
        QTRY_VERIFY_WITH_TIMEOUT(asked(service, Prices) && asked(service, Yearly) && asked(service, History),
                                 PatienceMs);
        QCOMPARE(LoggedService::boundValue(service.rowRequests(Yearly).last(), "CODE"), QString("gold"));
        QCOMPARE(LoggedService::boundValue(service.rowRequests(History).last(), "CODE"), QString("silver"));
        program.kill();
        QVERIFY(program.waitForFinished());
    }

    void changeArguments()
    {
        LoggedService service;
        QVERIFY(service.start());
        const auto terminal = start(service, {m_path});
        QTRY_VERIFY_WITH_TIMEOUT(asked(service, Prices) && asked(service, Yearly) && asked(service, History),
                                 PatienceMs);
        settle();
        ScreenTab *tab = terminal->window().findChild<ScreenTab *>();
        const int prices = service.rowRequests(Prices).size();
        const int history = service.rowRequests(History).size();
        const int yearly = service.rowRequests(Yearly).size();

        QVariantMap args = tab->arguments().values();
        args["CODE"] = "silver";
        tab->arguments().setValues(args);
        settle();
        QCOMPARE(service.rowRequests(Yearly).size(), yearly + 1);
        QCOMPARE(LoggedService::boundValue(service.rowRequests(Yearly).last(), "CODE"), QString("silver"));
        QCOMPARE(service.rowRequests(Prices).size(), prices);
        QCOMPARE(service.rowRequests(History).size(), history);

        args["view"] = QString("逐年统计|%1").arg(Yearly);
        tab->arguments().setValues(args);
        settle();
        QCOMPARE(tab->view().cells().at(1)->widget()->property("objVwId").toInt(), int(Yearly));
        QCOMPARE(service.rowRequests(Prices).size(), prices);
        QCOMPARE(service.rowRequests(History).size(), history);
        stop(terminal.get());
    }

    static std::unique_ptr<Terminal> start(const LoggedService &service, const QStringList &screens)
    {
        Options options;
        options.service = service.address();
        options.screens = screens;
        auto terminal = std::make_unique<Terminal>(options);
        terminal->start();
        return terminal;
    }

    static void stop(Terminal *terminal)
    {
        QVERIFY(terminal->window().close());
        QThreadPool::globalInstance()->waitForDone();
    }

    static ScreenCell *add(ScreenTab *tab, const QVariantMap &state)
    {
        ScreenCell *cell = tab->view().add("TFFrameSubjectZHP");
        configure(cell, state);
        return cell;
    }

    static void configure(ScreenCell *cell, const QVariantMap &state)
    {
        dynamic_cast<ITFMemory *>(cell->widget())->restore(state);
        InvokerBase().invoke(cell->property("zhpObj").value<QObject *>(), "settingsChanged");
    }

    /// As a user does it in the component's own settings.
    static void chooseView(ScreenCell *cell, const QString &topic, const QString &leaf)
    {
        QTimer::singleShot(0, cell, [topic, leaf] {
            QWidget *dialog = QApplication::activeModalWidget();
            auto *topics = dialog->findChild<QComboBox *>("cbNodeCode");
            auto *tree = dialog->findChild<QTreeWidget *>("twNavTree");
            const auto find = [&] { return tree->findItems(leaf, Qt::MatchExactly | Qt::MatchRecursive); };
            topics->setCurrentIndex(topics->findText(topic, Qt::MatchStartsWith));
            QTRY_VERIFY_WITH_TIMEOUT(!find().isEmpty(), PatienceMs);
            tree->setCurrentItem(find().first());
            dialog->findChild<QPushButton *>("pbOk")->click();
        });
        cell->openSettings();
    }

    static bool asked(LoggedService &service, int view) { return !service.rowRequests(view).isEmpty(); }

    /// Waits until no component asks any more.
    static void settle()
    {
        PageSettler settler;
        QSignalSpy settled(&settler, &PageSettler::settled);
        settler.start(PatienceMs);
        QVERIFY(settled.wait(PatienceMs));
    }

    QString m_path;
};

SUBJECT_TEST_MAIN(CompositeScreenTest)
#include "tst_compositescreen.moc"
