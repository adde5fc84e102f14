#include "tfcore/invokerbase.h"
#include "tfcore/tfappconfig.h"
#include "tfcore/tfcore.h"
#include "tfcore/tfframelesshelper.h"
#include "tfcore/tfglobalcss.h"
#include "tfcore/tfrequestlog.h"
#include "tfcore/tfserviceconfig.h"
#include "tfcore/tfwebview.h"

#include "subjecttest.h"

#include <QTemporaryDir>
#include <QThreadPool>
#include <QWebEnginePage>

namespace {
class SkinnedWidget : public QWidget, public ITFSkin
{
public:
    QWidget *object() override { return this; }
    void applySkinStyle(const QVariant &style) override { sheets.append(style.toString()); }

    QStringList sheets;
};

void write(const QString &path, const QByteArray &text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}
} // namespace

class HostCoreTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        for (const QByteArray &skin : {QByteArray("white"), QByteArray("black")}) {
            write(path(skin + "/subject/subject.css"), "QFrame { color: " + skin + "; }");
            write(path(skin + "/skin.json"), "{\"tipsColors\": [\"#010203\", \"#0A0B0C\"]}");
        }
        TFCore::instance()->setSkinRoot(path("."));
        QVERIFY(TFCore::instance()->setCurrentSkin("white"));
        beginMessages();
    }

    void cleanup() { endMessages(); }

    void viewGetsItsSheetNowAndAtEachChangeUntilItDies()
    {
        TFCore *core = TFCore::instance();
        SkinnedWidget lives;
        auto *dies = new SkinnedWidget;
        core->addStyle2View(&lives, "subject/subject.css");
        core->addStyle2View(dies, "subject/subject.css");
        delete dies;
        QSignalSpy changed(core, &TFCore::signalSkinChanged);

        QVERIFY(core->setCurrentSkin("black"));

        QCOMPARE(lives.sheets, QStringList({"QFrame { color: white; }", "QFrame { color: black; }"}));
        QCOMPARE(changed.value(0).value(0).toString(), QString("black"));
        QCOMPARE(core->getCurrentSkinId(), QString("black"));
    }

    void sheetsFindTheirPicturesBesideThemAndThenInTheSkin()
    {
        write(path("white/subject/arrow.svg"), "<svg/>");
        write(path("white/subject/s.css"),
              "a { image: url(arrow.svg); b: url( 'home.png' ); c: url(:/x.png) }");
        SkinnedWidget widget;

        TFCore::instance()->addStyle2View(&widget, "subject/s.css");

        const QString skin = QDir(path("white")).absolutePath();
        QCOMPARE(widget.sheets.last(),
                 QString("a { image: url(\"%1/subject/arrow.svg\"); b: url(\"%1/home.png\"); "
                         "c: url(\":/x.png\") }")
                     .arg(skin));
    }

    void missingSheetAndUnknownSkinAreToldAndHarmless()
    {
        SkinnedWidget widget;
        expectWarning("style sheet cannot be read: .*/white/none.css");
        TFCore::instance()->addStyle2View(&widget, "none.css");
        QCOMPARE(widget.sheets, QStringList(""));

        expectWarning("unknown skin: pink");
        QVERIFY(!TFCore::instance()->setCurrentSkin("pink"));
        QCOMPARE(TFCore::instance()->getCurrentSkinId(), QString("white"));
    }

    void valueReadsTheFirstFolderThatHasTheKey()
    {
        write(path("user/zhp.ini"), "[Settings]\nlist=专题-船期:2114000074,专题-装置:2\n");
        write(path("shipped/zhp.ini"), "[Settings]\nlist=shipped\nother=x\n");
        TFCore *core = TFCore::instance();
        core->setConfigFolders({path("user"), path("shipped")});

        QCOMPARE(core->value("zhp.ini:Settings/list").toString(),
                 QString("专题-船期:2114000074,专题-装置:2"));
        QCOMPARE(core->value("zhp.ini:Settings/other").toString(), QString("x"));
        QCOMPARE(core->value("zhp.ini:Settings/none", 7).toInt(), 7);
        QCOMPARE(core->value("none.ini:Settings/list", "d").toString(), QString("d"));
        QCOMPARE(core->value("no colon", "d").toString(), QString("d"));
    }

    void tipsColoursFollowTheSkin()
    {
        QCOMPARE(TFGlobalCss::getTipsColorByIndex(1), QColor("#0A0B0C"));
        QVERIFY(!TFGlobalCss::getTipsColorByIndex(2).isValid());
        QVERIFY(!TFGlobalCss::getTipsColorByIndex(-1).isValid());
        write(path("black/skin.json"), "{\"tipsColors\": [");
        TFCore::instance()->setCurrentSkin("black");
        expectWarning("black/skin.json at byte");
        QVERIFY(!TFGlobalCss::getTipsColorByIndex(1).isValid());
    }

    void invokerRefusesWhatDoesNotFit()
    {
        QTimer timer;
        QString text;
        QVERIFY(!InvokerBase().invoke(nullptr, "start"));
        expectWarning("QTimer has no method");
        QVERIFY(!InvokerBase().bind("QString", &text).invoke(&timer, "start"));
        QVERIFY(!timer.isActive());
    }

    void requestsReportedOnPoolThreadsArriveHereInOrder()
    {
        QStringList heard;
        const QObject context;
        connect(TFRequestLog::instance(), &TFRequestLog::finished, &context,
                [&](const TFRequestRecord &record) {
                    QCOMPARE(QThread::currentThread(), qApp->thread());
                    heard.append(record.path);
                });
        QThreadPool pool;
        pool.start([] {
            for (int i = 0; i < 3; ++i) {
                TFRequestRecord record;
                record.path = QString::number(i);
                TFRequestLog::instance()->report(record);
            }
        });
        QTRY_COMPARE(heard, QStringList({"0", "1", "2"}));
    }

    void identityMayBeReadWhileItIsWritten()
    {
        QThreadPool pool;
        for (int thread = 0; thread < 4; ++thread) {
            pool.start([thread] {
                for (int i = 0; i < 2000; ++i) {
                    TFAppConfig::instance()->setAppToken(QString(50, QChar('a' + thread)));
                    const QString token = TFAppConfig::instance()->getAppToken();
                    if (token.count(token.at(0)) != token.size())
                        qWarning() << "torn token" << token;
                }
            });
        }
        QVERIFY(pool.waitForDone());
    }

    void serviceAddressHasNoSlashAtItsEnd()
    {
        TFServiceConfig *config = TFServiceConfig::instance();
        QCOMPARE(config->getHttpUrl("servercfg.ini:Subject", "http://f").toString(), QString("http://f"));
        config->setHttpUrl("servercfg.ini:Subject", QUrl("http://host:1/base//"));
        QCOMPARE(config->getHttpUrl("servercfg.ini:Subject", "").toString(), QString("http://host:1/base"));
    }

    void webViewStaysAsleepWithoutAnAddress()
    {
        TFWebView view;
        ITFAbstractPage *page = &view;
        page->init(QUrl(), QString());
        view.show();
        page->refresh(QUrl(), QVariant());
        view.setZoom(1.5);
        view.hide();

        QCOMPARE(view.findChildren<QWebEnginePage *>().size(), 0);
        QCOMPARE(view.title(), QString());
        QCOMPARE(view.zoom(), 1.5);
    }

    void framelessWindowIsDraggedByItsTopAndResizedAtItsEdge()
    {
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.setGeometry(100, 100, 200, 200);
        TFFramelessHelper helper;
        helper.activateOn(&window);
        helper.setWidgetMovable(true, 30);
        helper.setWidgetResizable(true);
        window.show();

        drag(&window, {100, 20}, {40, 50});
        QCOMPARE(window.geometry(), QRect(140, 150, 200, 200));
        drag(&window, {100, 100}, {40, 50});
        QCOMPARE(window.geometry(), QRect(140, 150, 200, 200));
        drag(&window, {199, 100}, {25, 0});
        QCOMPARE(window.geometry(), QRect(140, 150, 225, 200));
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    static void drag(QWidget *window, QPoint from, QPoint by)
    {
        const QPoint start = window->mapToGlobal(from);
        const auto send = [&](QEvent::Type type, QPoint at, Qt::MouseButtons buttons) {
            QMouseEvent event(type, from, at, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                              buttons, Qt::NoModifier);
            QCoreApplication::sendEvent(window, &event);
        };
        send(QEvent::MouseButtonPress, start, Qt::LeftButton);
        send(QEvent::MouseMove, start + by, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, start + by, Qt::NoButton);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

SUBJECT_TEST_MAIN(HostCoreTest)
#include "tst_hostcore.moc"
