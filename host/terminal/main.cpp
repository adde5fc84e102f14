#include "options.h"
#include "terminal.h"

#include <QApplication>

#include <cstdio>
#include <unistd.h>

namespace {
void prepareToolkit()
{
    QCoreApplication::setApplicationName("subject-terminal");
    QCoreApplication::setApplicationVersion(TERMINAL_VERSION);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    // The web engine refuses to start its sandbox for root.
    if (geteuid() == 0 && !qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}
} // namespace

int main(int argc, char *argv[])
{
    prepareToolkit();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    // Before the application object, so that help and wrong usage need no display.
    const ParsedOptions parsed = parseOptions(arguments);
    if (!parsed.options) {
        std::fprintf(parsed.exitCode == 0 ? stdout : stderr, "%s\n", qPrintable(parsed.text));
        return parsed.exitCode;
    }
    QApplication application(argc, argv);
    Terminal terminal(*parsed.options);
    terminal.start();
    return QApplication::exec();
}
