#include "runningservice.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <csignal>

namespace {

QNetworkRequest requestFor(quint16 port, const QString &path)
{
    return QNetworkRequest(QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(port).arg(path)));
}

Answer answerOf(QNetworkReply *reply)
{
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll(),
            reply->rawHeader("Content-Encoding")};
}

} // namespace

RunningService::RunningService(const ServiceFixture &fixture, const QStringList &more)
{
    m_process.start(QStringLiteral(SERVICE_PROGRAM),
                    QStringList{"--db", fixture.databaseAddress(), "--views", fixture.viewFolder(), "--port",
                                "0", "--exit-with-parent"} +
                        more);
    while (!m_process.canReadLine() && m_process.waitForReadyRead(20000)) {
    }
    m_line = QString::fromUtf8(m_process.readLine()).trimmed();
}

RunningService::~RunningService()
{
    end(SIGKILL);
}

quint16 RunningService::port() const
{
    return static_cast<quint16>(QUrl(m_line.mid(13)).port(0));
}

void RunningService::end(int signal)
{
    if (m_process.state() != QProcess::NotRunning)
        ::kill(static_cast<pid_t>(m_process.processId()), signal);
    m_process.waitForFinished(20000);
}

QByteArray RunningService::errors()
{
    return m_errors += m_process.readAllStandardError();
}

QJsonObject Answer::envelope() const
{
    return QJsonDocument::fromJson(body).object();
}

Answer post(quint16 port, const QString &path, const QByteArray &body, const Headers &headers)
{
    QNetworkAccessManager manager;
    QNetworkRequest request = requestFor(port, path);
    request.setHeader(QNetworkRequest::ContentTypeHeader, "application/json");
    request.setRawHeader("userId", "tester");
    for (const auto &header : headers)
        request.setRawHeader(header.first, header.second);
    return answerOf(manager.post(request, body));
}

Answer post(quint16 port, const QString &path, const QByteArray &body, const QByteArray &token)
{
    return post(port, path, body, token.isEmpty() ? Headers() : Headers{{"kvt-token", token}});
}

Answer get(quint16 port, const QString &path)
{
    QNetworkAccessManager manager;
    return answerOf(manager.get(requestFor(port, path)));
}
