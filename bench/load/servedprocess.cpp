#include "servedprocess.h"

#include <QCoreApplication>
#include <QFile>
#include <QUrl>

#include <unistd.h>

namespace Load {

ServedProcess::ServedProcess(const QStringList &arguments)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/subject-service"),
                    arguments + QStringList{"--port", "0", "--exit-with-parent"});
    while (!m_process.canReadLine() && m_process.waitForReadyRead(20000)) {
    }
    const QString line = QString::fromUtf8(m_process.readLine()).trimmed();
    m_port = QUrl(line.section(QLatin1Char(' '), -1)).port(0);
    if (m_port == 0 || ::clock_getcpuclockid(static_cast<pid_t>(m_process.processId()), &m_clock) != 0)
        qFatal("the service did not start: %s %s", qPrintable(m_process.errorString()), qPrintable(line));
}

ServedProcess::~ServedProcess()
{
    m_process.terminate();
    m_process.waitForFinished();
}

double ServedProcess::megabytes() const
{
    QFile file(QStringLiteral("/proc/%1/statm").arg(m_process.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * double(::sysconf(_SC_PAGESIZE)) / 1e6;
}

} // namespace Load
