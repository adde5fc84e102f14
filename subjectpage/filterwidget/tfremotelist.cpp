#include "tfremotelist.h"

#include "net/tfdm.h"
#include "tfcore/tfserviceconfig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace {
const QString ListPath = QStringLiteral("/bas/ds/data");

/// Text of the first of two keys that the entry has.
QString textOf(const QJsonObject &entry, QLatin1String preferred, QLatin1String other)
{
    const auto found = entry.constFind(preferred);
    return (found != entry.constEnd() ? found.value() : entry.value(other)).toVariant().toString();
}
} // namespace

namespace TFRemoteList {

TFUc::TFRequestContent request(const TFTableModelData::FilterData &row)
{
    QJsonObject body;
    body.insert(QStringLiteral("filter"), row.DataSourceFilter);
    body.insert(QStringLiteral("filterParams"),
                QJsonDocument::fromJson(row.DataSourceFilterParams.toUtf8()).object());
    body.insert(QStringLiteral("objName"), row.DataSourceName);

    const QUrl base = TFServiceConfig::instance()->getHttpUrl(TFDm::ServiceKey, QString());
    TFUc::TFRequestContent content;
    content.url = QUrl::fromUserInput(base.toString() + ListPath);
    content.body = QJsonDocument(body).toJson(QJsonDocument::Compact);
    return content;
}

QMap<QString, QString> entries(const QByteArray &reply)
{
    QMap<QString, QString> values;
    const QJsonArray rows = QJsonDocument::fromJson(reply).object().value(QLatin1String("data")).toArray();
    for (const QJsonValue &row : rows) {
        const QJsonObject entry = row.toObject();
        values.insert(textOf(entry, QLatin1String("NodeNameFieldName"), QLatin1String("NAME")),
                      textOf(entry, QLatin1String("NodeDataKeyFieldName"), QLatin1String("VALUE")));
    }
    return values;
}

} // namespace TFRemoteList
