#include "accesslog.h"

#include "categories.h"
#include "jsonwriter.h"

#include <QDateTime>
#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace service {

namespace {

const int MaxUserLength = 64; // the name comes from the request and is not to fill the log

void appendMember(QByteArray &out, const char *name, const QString &text)
{
    out += QByteArray(",\"") + name + "\":";
    json::appendText(out, text);
}

void appendMember(QByteArray &out, const char *name, qint64 number)
{
    out += QByteArray(",\"") + name + "\":";
    json::appendInteger(out, number);
}

QByteArray lineOf(const AccessEntry &entry)
{
    QByteArray line("{\"time\":\"");
    line += QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toLatin1() + '"';
    appendMember(line, "user", entry.user.left(MaxUserLength));
    appendMember(line, "path", entry.path);
    appendMember(line, "target", entry.target);
    appendMember(line, "rows", entry.rows);
    appendMember(line, "bytes", entry.bytes);
    line += ",\"ms\":" + QByteArray::number(double(entry.microseconds) / 1000, 'f', 3);
    appendMember(line, "status", entry.status);
    return line + "}\n";
}

} // namespace

AccessLog::~AccessLog()
{
    if (m_file > STDERR_FILENO)
        ::close(m_file);
}

bool AccessLog::open(const QString &path, QString *fault)
{
    int file = STDERR_FILENO;
    if (path != QLatin1String("-"))
        file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0640);
    if (file < 0) {
        *fault = QStringLiteral("cannot write access log %1: %2")
                     .arg(path, QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_file > STDERR_FILENO)
        ::close(m_file);
    m_file = file;
    m_path = path;
    return true;
}

void AccessLog::reopen()
{
    QString fault;
    if (!m_path.isEmpty() && !open(m_path, &fault))
        qCWarning(lcAccess).noquote() << fault;
}

void AccessLog::write(const AccessEntry &entry)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_file < 0)
        return;
    const QByteArray line = lineOf(entry);
    const bool isWritten = ::write(m_file, line.constData(), std::size_t(line.size())) == line.size();
    // A log that can't be written is told of once and is no reason not to serve.
    if (!isWritten && !m_isFailing)
        qCWarning(lcAccess) << "the access log can't be written:" << std::strerror(errno);
    m_isFailing = !isWritten;
}

} // namespace service
