#include "serviceprocess.h"

#include "terminallog.h"

#include <QFileInfo>
#include <QRegularExpression>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

namespace {
constexpr int StartTimeoutMs = 10000;
constexpr int StopTimeoutMs = 3000;
constexpr int KeptErrorBytes = 2000;
const char MostRows[] = "1000000"; ///< of a reply: its one user may export every table whole

/// A process that the kernel ends when its parent goes.
class BoundProcess : public QProcess
{
public:
    using QProcess::QProcess;

protected:
    void setupChildProcess() override
    {
#ifdef Q_OS_LINUX
        prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
    }
};
} // namespace

ServiceProcess::ServiceProcess(QObject *parent)
    : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(StartTimeoutMs);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        giveUp(tr("the data service gave no address within %1 s").arg(m_patience.interval() / 1000.0));
    });
}

ServiceProcess::~ServiceProcess()
{
    stop();
}

qint64 ServiceProcess::processId() const
{
    return m_process ? m_process->processId() : 0;
}

QString ServiceProcess::missingPart(const Command &command) const
{
    if (!QFileInfo(command.program).isExecutable())
        return tr("the data service is not there: %1").arg(command.program);
    if (!QFileInfo(command.database).isFile())
        return tr("the demonstration database is not there: %1").arg(command.database);
    if (!QFileInfo(command.views).isDir())
        return tr("the folder of view documents is not there: %1").arg(command.views);
    return {};
}

void ServiceProcess::start(const Command &command)
{
    stop();
    m_state = Starting;
    const QString missing = missingPart(command);
    if (!missing.isEmpty()) {
        giveUp(missing);
        return;
    }
    m_output.clear();
    m_lastErrors.clear();
    m_process = new BoundProcess(this);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &ServiceProcess::readOutput);
    connect(m_process, &QProcess::readyReadStandardError, this, &ServiceProcess::readErrors);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            giveUp(tr("the data service cannot be started: %1").arg(m_process->errorString()));
    });
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, [this](int code) {
        readErrors();
        giveUp(tr("the data service ended with status %1: %2")
                   .arg(code)
                   .arg(QString::fromUtf8(m_lastErrors).trimmed()));
    });
    m_patience.start();
    m_process->start(command.program, {"--db", command.database, "--views", command.views, "--port", "0",
                                       "--gzip-from", "0", "--max-rows", MostRows, "--exit-with-parent"});
}

void ServiceProcess::stop()
{
    m_patience.stop();
    m_state = Stopped;
    if (!m_process)
        return;
    m_process->disconnect(this);
    m_process->terminate();
    if (m_process->state() != QProcess::NotRunning && !m_process->waitForFinished(StopTimeoutMs)) {
        m_process->kill();
        m_process->waitForFinished(StopTimeoutMs);
    }
    m_process->deleteLater();
    m_process = nullptr;
}

void ServiceProcess::readOutput()
{
    const QByteArray text = m_process->readAllStandardOutput();
    if (m_state != Starting)
        return;
    m_output += text;
    static const QRegularExpression pattern(R"(listening on (http://\S+)\r?\n)");
    const QRegularExpressionMatch match = pattern.match(QString::fromUtf8(m_output));
    if (!match.hasMatch())
        return;
    m_patience.stop();
    m_state = Running;
    m_output.clear();
    qCDebug(lcService).noquote() << "listening on" << match.captured(1);
    emit ready(QUrl(match.captured(1)));
}

void ServiceProcess::readErrors()
{
    const QByteArray text = m_process->readAllStandardError();
    m_lastErrors = (m_lastErrors + text).right(KeptErrorBytes);
    for (const QByteArray &line : text.split('\n')) {
        if (!line.trimmed().isEmpty())
            qCDebug(lcService).noquote() << QString::fromUtf8(line.trimmed());
    }
}

void ServiceProcess::giveUp(const QString &reason)
{
    stop();
    qCWarning(lcService).noquote() << reason;
    emit failed(reason);
}
