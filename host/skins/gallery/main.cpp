#include "gallery.h"

#include "look.h"
#include "tfcore/tfcore.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

/// Shows the controls in one skin, or draws them into a picture. QT_SCALE_FACTOR sets the scale.
int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    Look look;
    look.prepare(&app);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every control in a skin."));
    parser.addHelpOption();
    parser.addOptions({{"skins", "Folder with one folder a skin.", "folder",
                        QCoreApplication::applicationDirPath() + "/skins"},
                       {"skin", "Skin to show.", "name", "white"},
                       {"out", "Draw into this picture instead of a window.", "file"}});
    parser.process(app);

    TFCore::instance()->setSkinRoot(parser.value("skins"));
    if (!look.setSkin(parser.value("skin")))
        return 2;

    Gallery gallery;
    gallery.resize(1320, 780);
    gallery.show();
    if (!parser.isSet("out"))
        return QApplication::exec();

    QApplication::processEvents();
    if (!gallery.grab().save(parser.value("out"))) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(parser.value("out")));
        return 1;
    }
    return 0;
}
