#include "virtualdisplay.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QStandardPaths>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
constexpr int StartTimeoutMs = 15000;
constexpr QSize LeastScreen(1600, 1200);

bool connectsTo(const QByteArray &path, bool isAbstract)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const int skipped = isAbstract ? 1 : 0; // an abstract name begins with a zero byte
    if (path.size() + skipped >= int(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path + skipped, path.constData(), size_t(path.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + size_t(path.size() + skipped));
    const bool isThere = ::connect(socket, reinterpret_cast<sockaddr *>(&address), length) == 0;
    ::close(socket);
    return isThere;
}

bool isXDisplayThere()
{
    static const QRegularExpression local("^(?:unix)?:(\\d+)");
    const QString display = qEnvironmentVariable("DISPLAY");
    const QRegularExpressionMatch match = local.match(display);
    if (!match.hasMatch())
        return !display.isEmpty(); // another machine's: to be found out by using it
    const QByteArray path = "/tmp/.X11-unix/X" + match.captured(1).toLatin1();
    return connectsTo(path, true) || connectsTo(path, false);
}

[[noreturn]] void becomeServer(const QByteArray &program, const QByteArray &screen, int numberPipe,
                               pid_t parent)
{
    // Away from the terminal's keys; it goes when its parent goes.
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != parent)
        ::_exit(1);
    const int nowhere = ::open("/dev/null", O_RDWR);
    for (int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::dup2(nowhere, stream);
    const QByteArray pipe = QByteArray::number(numberPipe);
    ::execl(program.constData(), "Xvfb", "-displayfd", pipe.constData(), "-screen", "0", screen.constData(),
            "-nolisten", "tcp", "-noreset", static_cast<char *>(nullptr));
    ::_exit(1);
}
} // namespace

VirtualDisplay::~VirtualDisplay()
{
    if (m_process <= 0)
        return;
    ::kill(m_process, SIGTERM);
    ::waitpid(m_process, nullptr, 0);
}

bool VirtualDisplay::isPlatformWithoutDisplay()
{
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    return platform.startsWith("offscreen") || platform.startsWith("minimal");
}

bool VirtualDisplay::isDisplayThere()
{
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (isPlatformWithoutDisplay())
        return false;
    return (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && !platform.startsWith("xcb")) || isXDisplayThere();
}

QString VirtualDisplay::start(const QSize &size)
{
    const QByteArray program = QStandardPaths::findExecutable("Xvfb").toLocal8Bit();
    if (program.isEmpty())
        return "there is no display, and no Xvfb to make one: install the package xvfb (apt-get install "
               "xvfb)";
    const QSize wanted = LeastScreen.expandedTo(size);
    const QByteArray screen = QString("%1x%2x24").arg(wanted.width()).arg(wanted.height()).toLatin1();
    int pipe[2];
    if (::pipe(pipe) != 0)
        return QString("no virtual display: %1").arg(std::strerror(errno));
    ::fcntl(pipe[0], F_SETFD, FD_CLOEXEC);
    const pid_t parent = ::getpid();
    m_process = ::fork();
    if (m_process == 0)
        becomeServer(program, screen, pipe[1], parent);
    ::close(pipe[1]);
    const QString number = m_process > 0 ? readNumber(pipe[0]) : QString();
    ::close(pipe[0]);
    if (number.isEmpty())
        return QString("no virtual display: %1 gave none within %2 s")
            .arg(QString(program))
            .arg(StartTimeoutMs / 1000);
    qputenv("DISPLAY", ':' + number.toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    return {};
}

/// The number that the server writes when it is ready, on a line of its own.
QString VirtualDisplay::readNumber(int pipe)
{
    QByteArray line;
    pollfd watched{pipe, POLLIN, 0};
    char byte = 0;
    while (!line.endsWith('\n') && ::poll(&watched, 1, StartTimeoutMs) == 1 && ::read(pipe, &byte, 1) == 1)
        line.append(byte);
    return line.endsWith('\n') ? QString(line.trimmed()) : QString();
}
