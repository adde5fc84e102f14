#pragma once

#include "servicefixture.h"

#include <QJsonObject>
#include <QProcess>

/// The real program on a free port, over the database and the views of a fixture.
class RunningService
{
public:
    explicit RunningService(const ServiceFixture &fixture, const QStringList &more = {});
    ~RunningService();

    /// The first line that it wrote.
    QString line() const { return m_line; }
    quint16 port() const;
    QProcess &process() { return m_process; }

    /// Sends the signal and waits for its end.
    void end(int signal);

    /// All that it has written to standard error so far.
    QByteArray errors();

private:
    QProcess m_process;
    QString m_line;
    QByteArray m_errors;
};

/// What came back for a request.
struct Answer
{
    int status = 0;
    QByteArray body;
    QByteArray encoding; ///< Content-Encoding
    QJsonObject envelope() const;
};

using Headers = QList<QPair<QByteArray, QByteArray>>;

/// Sends a POST as the user "tester" and waits for the answer.
Answer post(quint16 port, const QString &path, const QByteArray &body, const Headers &headers);
Answer post(quint16 port, const QString &path, const QByteArray &body, const QByteArray &token = {});

Answer get(quint16 port, const QString &path);

const QString SubjectPath = QStringLiteral("/bas/subject/data");
const QString NamedPath = QStringLiteral("/bas/ds/data");
