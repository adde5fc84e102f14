#include "pagefactory.h"
#include "pagetab.h"
#include "pagetabs.h"
#include "pluginmanager.h"
#include "tfcore/tfobjectpool.h"

#include "subjecttest.h"

#include <QTabWidget>
#include <QTemporaryDir>

namespace {
/// The plug-ins as text, one a line: "name | state | reason".
QString textOf(const PluginManager &manager)
{
    QStringList lines;
    for (const PluginInfo &info : manager.plugins())
        lines.append(QStringList({info.name, PluginInfo::stateName(info.state), info.reason}).join(" | "));
    return lines.join('\n');
}
} // namespace

class PluginsTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        beginMessages();
    }

    void cleanup() { endMessages(); }

    void goodPluginWorksAndTakesItsObjectsWithIt()
    {
        {
            PluginManager manager;
            manager.load(folderWith({"goodplugin"}));
            QCOMPARE(textOf(manager), QString("Good | Initialized | "));
            const QObject *registration = TFObjectPool::instance()->find("TFApp.SAMPLE");
            QVERIFY(registration);
            QCOMPARE(registration->property("arguments").toStringList(), QStringList("-fast"));
        }
        QVERIFY(!TFObjectPool::instance()->find("TFApp.SAMPLE"));
    }

    void eachFaultIsAStateAndAReasonAndStopsNobodyElse_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("states");
        testRow("of every kind",
                QStringList{"foreignplugin", "goodplugin", "refusingplugin", "strangeplugin", "text"},
                " | Invalid | not a plug-in\n"
                "Foreign | Invalid | interface \"org.example.Foreign\" where \"TFAppPlugin\" is expected\n"
                "Good | Initialized | \n"
                "Refusing | Failed | the licence of the sun has run out\n"
                "Strange | Failed | its class is not derived from IPlugin");
        testRow("dependent beside what it needs", QStringList{"dependentplugin", "goodplugin"},
                "Dependent | Initialized | \nGood | Initialized | ");
        testRow("dependent alone", QStringList{"dependentplugin"},
                "Dependent | Failed | needs Good 1.1.5, which is not there");
        testRow("one name twice", QStringList{"goodplugin", "twin"},
                "Good | Initialized | \nGood | Invalid | a plug-in of this name was found before");
    }

    void eachFaultIsAStateAndAReasonAndStopsNobodyElse()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, states);
        const QStringList folders = folderWith(files);
        if (files.contains("text"))
            write("atext.so", "this is no library");
        if (files.contains("twin"))
            QVERIFY(QFile::copy(m_folder->filePath("libgoodplugin.so"), m_folder->filePath("libtwin.so")));
        const QStringList lines = states.split('\n');
        for (const QString &fault : lines.filter(QRegularExpression("Invalid|Failed")))
            expectWarning(QRegularExpression::escape(fault.section(" | ", 2)));
        PluginManager manager;
        manager.load(folders);

        QVERIFY2(textOf(manager).startsWith(states), qPrintable(textOf(manager)));
        QCOMPARE(manager.faults().size(), lines.size() - lines.filter("Initialized").size());
    }

    void tabShowsThePageOfAnAddressWithItsTitle()
    {
        PluginManager manager;
        manager.load(folderWith({"goodplugin"}));
        PageFactory factory(&manager);
        PageTabs tabs(&factory);
        QSignalSpy wanted(&tabs, &PageTabs::openRequested);

        tabs.open(QUrl("view://SAMPLE?b=2"));

        QCOMPARE(tabs.count(), 1);
        QCOMPARE(tabs.findChild<QTabWidget *>()->tabText(0), QString("Page of sample"));
        QWidget *page = pageIn(tabs);
        QCOMPARE(page->property("initUrl").toUrl(), QUrl("view://sample?b=2"));
        QVERIFY(QMetaObject::invokeMethod(page, "opensAnother", Q_ARG(QUrl, QUrl("view://sample?c=3"))));
        QCOMPARE(wanted.value(0).value(0).toString(), QString("view://sample?c=3"));

        const QPointer<QWidget> before = page;
        tabs.reloadCurrent();
        QVERIFY(!before);
        QCOMPARE(pageIn(tabs)->property("initUrl").toUrl(), QUrl("view://sample?b=2"));
        tabs.closeCurrent();
        QCOMPARE(tabs.count(), 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void addressThatNobodyServesGivesATabWithTheReason()
    {
        PluginManager manager;
        manager.load({});
        PageFactory factory(&manager);
        PageTabs tabs(&factory);
        expectWarning("No plug-in shows pages of the kind view://subjectpage");
        tabs.open(QUrl("view://subjectpage?objvwid=260"));
        QCOMPARE(tabs.count(), 1);
        QVERIFY(tabs.findChild<QWidget *>("PageFault"));
    }

private:
    QStringList folderWith(const QStringList &plugins)
    {
        for (const QString &name : plugins) {
            const QString file = "lib" + name + ".so";
            QFile::copy(PROJECT_BINARY_DIR "/tests/hostplugins/" + file, m_folder->filePath(file));
        }
        return {m_folder->path()};
    }

    void write(const QString &name, const QByteArray &text)
    {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    static QWidget *pageIn(const PageTabs &tabs)
    {
        return tabs.current()->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

SUBJECT_TEST_MAIN(PluginsTest)
#include "tst_plugins.moc"
