#pragma once

#include <QByteArray>
#include <QString>

#include <mutex>

namespace service {

/// What one line of the access log tells.
struct AccessEntry
{
    QString user;
    QString path;
    QString
        target; ///< `260` for a view, `object 38`, `list NAME`; empty where the request did not get so far
    int status = 0;
    qint64 rows = 0;
    qint64 bytes = 0; ///< of the reply, before it is compressed
    qint64 microseconds = 0;
};

/// The access log: one JSON object a line, each written at once, so that lines of several threads never mix.
///
///     {"time":"2026-01-31T08:15:00.123Z","user":"u1","path":"/bas/subject/data","target":"260","rows":200,
///      "bytes":141234,"ms":1.234,"status":200}
///
/// It never holds a token. For any number of threads.
class AccessLog
{
public:
    AccessLog() = default;
    ~AccessLog();
    AccessLog(const AccessLog &) = delete;
    AccessLog &operator=(const AccessLog &) = delete;

    /// Writes to the end of the file \a path, "-" for standard error. False, with \a fault, when it can't be
    /// opened; then the log goes where it went before.
    bool open(const QString &path, QString *fault);

    /// Opens the file again under its name, after somebody has moved it away.
    void reopen();

    void write(const AccessEntry &entry);

private:
    std::mutex m_mutex;
    QString m_path;
    int m_file = -1;
    bool m_isFailing = false;
};

} // namespace service
