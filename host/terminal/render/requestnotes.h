#pragma once

#include "tfcore/tfrequestlog.h"

#include <QDateTime>
#include <QJsonArray>
#include <QList>
#include <QObject>
#include <QStringList>

/// The requests of the page that is being rendered.
class RequestNotes : public QObject
{
    Q_OBJECT

public:
    explicit RequestNotes(QObject *parent = nullptr);

    /// Forgets what there is; requests that went out before are none of the next page's.
    void restart();
    /// One object a finished request: "path", "body", "ok", "bytes", "ms".
    QJsonArray toJson() const;
    /// One line a failed request.
    QStringList failures() const;

private:
    void add(const TFRequestRecord &record);

    QDateTime m_start;
    QList<TFRequestRecord> m_records;
};
