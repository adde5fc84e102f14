#pragma once

#include <QList>
#include <QString>

class QJsonValue;

/// One constant of the service: a code with its name, within a type.
struct TFCacheRecord
{
    QString value;
    QString name;
    QString type;
    QString typeDescription;
    QString filter;
};

/// The process-wide table of constants. User-interface thread only.
class TFCacheConfig
{
public:
    static TFCacheConfig *instance();

    /// Replaces the table by the rows of an answer of the service; anything but an array leaves it empty.
    ///
    /// Elements that are no objects are passed over. Numbers become text in general format with 6 digits.
    void fill(const QJsonValue &rows);

    /// The records of \a type and, unless \a filter is empty, with that filter, in the order of the rows.
    QList<TFCacheRecord> records(const QString &type, const QString &filter) const;

private:
    TFCacheConfig() = default;
    Q_DISABLE_COPY(TFCacheConfig)

    QList<TFCacheRecord> m_records;
};
