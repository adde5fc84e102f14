#include "tfcacheconfig.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace {
// Keys of a row, as the service spells them.
constexpr QLatin1String keyValue("VALUE");
constexpr QLatin1String keyName("NAME");
constexpr QLatin1String keyType("TYPE");
constexpr QLatin1String keyTypeDescription("TYPE_DESC");
constexpr QLatin1String keyFilter("FILTER1");

/// A code that may come as number or as text.
QString code(const QJsonValue &value)
{
    return value.isString() ? value.toString() : QString::number(value.toDouble(), 'g', 6);
}
} // namespace

TFCacheConfig *TFCacheConfig::instance()
{
    static TFCacheConfig table;
    return &table;
}

void TFCacheConfig::fill(const QJsonValue &rows)
{
    m_records.clear();
    const QJsonArray array = rows.toArray();
    for (const QJsonValue &element : array) {
        if (!element.isObject())
            continue;
        const QJsonObject row = element.toObject();
        m_records.append({code(row.value(keyValue)), row.value(keyName).toString(), code(row.value(keyType)),
                          row.value(keyTypeDescription).toString(), code(row.value(keyFilter))});
    }
}

QList<TFCacheRecord> TFCacheConfig::records(const QString &type, const QString &filter) const
{
    QList<TFCacheRecord> found;
    std::copy_if(m_records.begin(), m_records.end(), std::back_inserter(found),
                 [&](const TFCacheRecord &record) {
                     return record.type == type && (filter.isEmpty() || record.filter == filter);
                 });
    return found;
}
