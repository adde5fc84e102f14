#include "screenobject.h"
#include "tfcore/itfskin.h"
#include "tfcore/tfcore.h"
#include "tfcore/tfserviceconfig.h"
#include "tfcore/tfskinpalette.h"
#include "tfframesubjectzhp.h"
#include "tfsubjectsetting.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QStyleFactory>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <cstdio>

namespace {
const char Usage[] = "usage: setting-pictures SERVICE-URL FOLDER SKIN VIEW-ID TITLE TOPICS\n";

/// The terminal's window around a component.
class Screen : public QWidget, public ITFSkin
{
public:
    explicit Screen(ScreenObject *object)
    {
        object->offerOn(this);
        TFCore::instance()->addStyle2View(this, QStringLiteral("terminal.css"));
        resize(1100, 700);
    }
    QWidget *object() override { return this; }
    void applySkinStyle(const QVariant &style) override { qApp->setStyleSheet(style.toString()); }
};

bool save(QWidget *widget, const QString &file)
{
    const bool isWritten = widget->grab().save(file);
    if (!isWritten)
        std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    return isWritten;
}

/// Draws the dialog once the tree has the view of the component, and closes it.
bool drawDialog(TFFrameSubjectZHP *frame, const QString &file)
{
    bool isWritten = false;
    QMetaObject::invokeMethod(
        frame,
        [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            auto *tree = dialog->findChild<QTreeWidget *>();
            if (!QTest::qWaitFor([tree] { return tree->currentItem(); }, 5000))
                std::fprintf(stderr, "the tree has no such view\n");
            QTest::qWait(1500);
            isWritten = save(dialog, file);
            static_cast<QDialog *>(dialog)->reject();
        },
        Qt::QueuedConnection);
    frame->actions().constFirst()->trigger();
    return isWritten;
}
} // namespace

/// Draws the settings of a component, and the component, in one skin, against a running service.
int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 7) {
        std::fputs(Usage, stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("WenQuanYi Micro Hei"));
    font.setPixelSize(12);
    QApplication::setFont(font);
    TFServiceConfig::instance()->setHttpUrl(QStringLiteral("servercfg.ini:Subject"), QUrl(arguments.at(1)));
    TFCore *core = TFCore::instance();
    core->setSkinRoot(QStringLiteral(SKIN_FOLDER));
    const QPalette plain = QApplication::palette();
    QObject::connect(core, &TFCore::signalSkinChanged, &app,
                     [plain] { QApplication::setPalette(TFSkinPalette::current(plain)); });
    if (!core->setCurrentSkin(arguments.at(3)))
        return 2;

    ScreenObject object;
    Screen screen(&object);
    TFFrameSubjectZHP frame(&screen, arguments.at(6));
    auto *column = new QVBoxLayout(&screen);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&frame);
    screen.show();
    frame.restore({{"version", "1.0.0"},
                   {"titleVisible", true},
                   {"filterVisible", true},
                   {"mainViewVisible", true},
                   {"subViewVisible", true},
                   {"pageBarVisible", true},
                   {"objVwId", arguments.at(4).toLongLong()},
                   {"title", arguments.at(5)}});
    QTest::qWait(1500);
    const QString prefix = arguments.at(2) + '/' + arguments.at(3);
    const bool isDrawn = drawDialog(&frame, prefix + "-settings.png");
    QTest::qWait(1500);
    return isDrawn && save(&screen, prefix + "-component.png") ? 0 : 1;
}
