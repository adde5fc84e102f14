#include "options.h"
#include "terminal.h"

#include "tfcore/tfwebprocesses.h"

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
    // Whole factors only: one-pixel lines stay sharp.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::Round);
    // The web engine refuses to start its sandbox for root.
    if (geteuid() == 0 && !qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    TFWebProcesses::shareBySite();
}

int printInstead(const ParsedOptions &parsed, int argc, char *argv[])
{
    constexpr int WrongUsage = 2;
    if (parsed.outcome == ParsedOptions::WrongUsage) {
        std::fprintf(stderr, "%s\n", qPrintable(parsed.fault));
        return WrongUsage;
    }
    QCoreApplication application(argc, argv);
    const bool help = parsed.outcome == ParsedOptions::Help;
    std::puts(qPrintable(help ? optionsHelp() : QString("subject-terminal " TERMINAL_VERSION)));
    return 0;
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
    if (parsed.outcome != ParsedOptions::Start)
        return printInstead(parsed, argc, argv);
    QApplication application(argc, argv);
    Terminal terminal(parsed.options);
    terminal.start();
    return QApplication::exec();
}
