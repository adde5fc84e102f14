#include "gallery.h"
#include "skinnedwidget.h"

#include "tfcore/tfcore.h"
#include "tfcore/tfskinpalette.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QStyleFactory>
#include <QVBoxLayout>

#include <cstdio>

/// Shows the controls in one skin, or draws them into a picture. QT_SCALE_FACTOR sets the scale.
int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("WenQuanYi Micro Hei"));
    font.setPixelSize(12);
    QApplication::setFont(font);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every control in a skin."));
    parser.addHelpOption();
    parser.addOptions({{"skins", "Folder with one folder a skin.", "folder",
                        QCoreApplication::applicationDirPath() + "/skins"},
                       {"skin", "Skin to show.", "name", "white"},
                       {"out", "Draw into this picture instead of a window.", "file"}});
    parser.process(app);

    TFCore *core = TFCore::instance();
    core->setSkinRoot(parser.value("skins"));
    const QPalette plain = QApplication::palette();
    QObject::connect(core, &TFCore::signalSkinChanged, &app,
                     [plain] { QApplication::setPalette(TFSkinPalette::current(plain)); });
    if (!core->setCurrentSkin(parser.value("skin")))
        return 2;

    SkinnedWidget terminal;
    auto *layout = new QVBoxLayout(&terminal);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new Gallery);
    core->addStyle2View(&terminal, QStringLiteral("terminal.css"));
    terminal.resize(1320, 780);
    terminal.show();
    if (!parser.isSet("out"))
        return QApplication::exec();

    QApplication::processEvents();
    if (!terminal.grab().save(parser.value("out"))) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(parser.value("out")));
        return 1;
    }
    return 0;
}
