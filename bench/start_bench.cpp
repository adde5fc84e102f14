// From the start of the terminal to its painted home page, the start of its own data service included,
// against a bare window. Wants the demonstration database.

#include "comparison.h"
#include "painting.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>

namespace {
constexpr int Rounds = 15;
constexpr QSize WindowSize(1400, 900);
const char BareWindow[] = "bare";

qint64 now()
{
    return std::chrono::steady_clock::now().time_since_epoch().count();
}

/// In a process of its own: shows a window and tells when it was painted.
int showBareWindow(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(WindowSize);
    window.show();
    QTimer::singleShot(0, &window, [&window] {
        window.repaint();
        std::printf("%lld\n", static_cast<long long>(now()));
        QApplication::quit();
    });
    return QApplication::exec();
}

/// Milliseconds from starting a program to the time that it tells.
double paintTime(const QString &program, const QStringList &arguments)
{
    QProcess process;
    const qint64 start = now();
    process.start(program, arguments);
    process.waitForFinished(-1);
    const qint64 painted = process.readAllStandardOutput().trimmed().toLongLong();
    if (process.exitCode() != 0 || painted < start)
        qFatal("%s painted nothing: %s", qPrintable(program), process.readAllStandardError().constData());
    return double(painted - start) / 1e6;
}

void compareStart(const QString &folder)
{
    const QTemporaryDir scratch;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(scratch.path())); // nobody's settings
    const QStringList arguments{
        "--plugin-path", folder + "/paintwatch",
        "--screenshot",  scratch.filePath("page.png"),
        "--size",        QStringLiteral("%1x%2").arg(WindowSize.width()).arg(WindowSize.height())};
    Bench::compareTimed(
        {"terminal start to a painted page (second start)", "a bare QApplication window shown", 0}, Rounds,
        [] { return paintTime(QCoreApplication::applicationFilePath(), {BareWindow}); },
        [&] { return paintTime(folder + "/subject-terminal", arguments); });
}
} // namespace

int main(int argc, char *argv[])
{
    if (argc > 1)
        return showBareWindow(argc, argv);
    Bench::prepareToolkit();
    const QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::applicationDirPath();
    if (QFile::exists(folder + "/../../demo/demo.sqlite"))
        compareStart(folder);
    else
        std::fprintf(stderr, "left out: no demonstration database is there; tools/demo-data builds it\n");
    return 0;
}
