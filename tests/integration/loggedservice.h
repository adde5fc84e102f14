#pragma once

#include "demodata.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

/// The data service as a program of its own over the demonstration data, with all that it received.
class LoggedService
{
public:
    bool start()
    {
        constexpr int PatienceMs = 20000;
        m_process.setProcessChannelMode(QProcess::SeparateChannels);
        m_process.start(PROJECT_BINARY_DIR "/bin/subject-service",
                        {"--db", DemoData::database(), "--views", DemoData::views(), "--port", "0", "--log",
                         "debug", "--exit-with-parent"});
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(PatienceMs))
                return false;
        }
        m_address = QString::fromUtf8(m_process.readLine()).section("listening on ", 1).trimmed();
        return !m_address.isEmpty();
    }

    ~LoggedService()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    QString address() const { return m_address; }

    /// Bodies of the row requests for a view, oldest first.
    QList<QJsonObject> rowRequests(int view)
    {
        m_log += m_process.readAllStandardError();
        QList<QJsonObject> bodies;
        for (const QByteArray &line : m_log.split('\n')) {
            const int brace = line.indexOf('{');
            const QJsonObject body = QJsonDocument::fromJson(line.mid(qMax(brace, 0))).object();
            if (body.value("obj_vw_id").toInt() == view && body.value("flag").toInt() == 1)
                bodies.append(body);
        }
        return bodies;
    }

    /// The value bound to a field, whether it went as a condition or as a key of its own.
    static QString boundValue(const QJsonObject &body, const QString &field)
    {
        const QJsonValue bound = body.value("filterParams").toObject().value(field);
        return (bound.isUndefined() ? body.value(field) : bound).toVariant().toString();
    }

private:
    QProcess m_process;
    QByteArray m_log;
    QString m_address;
};
