#include "requestnotes.h"

#include <QJsonDocument>
#include <QJsonObject>

RequestNotes::RequestNotes(QObject *parent)
    : QObject(parent)
    , m_start(QDateTime::currentDateTime())
{
    connect(TFRequestLog::instance(), &TFRequestLog::finished, this, &RequestNotes::add);
}

void RequestNotes::restart()
{
    m_records.clear();
    m_start = QDateTime::currentDateTime();
}

void RequestNotes::add(const TFRequestRecord &record)
{
    if (record.time >= m_start)
        m_records.append(record);
}

QJsonArray RequestNotes::toJson() const
{
    QJsonArray requests;
    for (const TFRequestRecord &record : m_records) {
        const QJsonDocument body = QJsonDocument::fromJson(record.body);
        requests.append(QJsonObject{
            {"path", record.path},
            {"body", body.isObject() ? QJsonValue(body.object()) : QJsonValue(QString(record.body))},
            {"ok", record.ok},
            {"bytes", record.bytes},
            {"ms", record.ms}});
    }
    return requests;
}

QStringList RequestNotes::failures() const
{
    QStringList failures;
    for (const TFRequestRecord &record : m_records) {
        if (!record.ok)
            failures.append(record.path + ": " + record.error);
    }
    return failures;
}
