#include "options.h"
#include "render/virtualdisplay.h"
#include "terminal.h"

#include "tfcore/tfwebprocesses.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <unistd.h>

namespace {
enum ExitCode { NotShown = 1, WrongUsage = 2 };

constexpr QSize PageSize(1400, 900);

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
    if (parsed.outcome == ParsedOptions::WrongUsage) {
        std::fprintf(stderr, "%s\n", qPrintable(parsed.fault));
        return WrongUsage;
    }
    QCoreApplication application(argc, argv);
    const bool help = parsed.outcome == ParsedOptions::Help;
    std::puts(qPrintable(help ? optionsHelp() : QString("subject-terminal " TERMINAL_VERSION)));
    return 0;
}

/// Gets what rendering needs: a folder to write into and a display. Returns the status to end with, 0 to go
/// on.
int prepareRendering(const Options &options, VirtualDisplay *display)
{
    const QString folder = options.render.folder;
    if (!QDir().mkpath(folder) || !QFileInfo(folder).isWritable()) {
        std::fprintf(stderr, "--out: the folder can't be written: %s\n", qPrintable(folder));
        return WrongUsage;
    }
    if (VirtualDisplay::isDisplayThere())
        return 0;
    const QString fault = display->start(options.size.isValid() ? options.size : PageSize);
    if (fault.isEmpty() || VirtualDisplay::isPlatformWithoutDisplay())
        return 0;
    std::fprintf(stderr, "%s\n", qPrintable(fault));
    return NotShown;
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
    VirtualDisplay display;
    const int fault = parsed.options.render.isWanted() ? prepareRendering(parsed.options, &display) : 0;
    if (fault != 0)
        return fault;
    QApplication application(argc, argv);
    Terminal terminal(parsed.options);
    terminal.start();
    return QApplication::exec();
}
