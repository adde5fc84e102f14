#include "tfobjectpropertytable.h"

#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVariant>

namespace {
constexpr QLatin1String IdKey("OBJ_ID");
constexpr QLatin1String RelationKey("REF_RELA");
constexpr QLatin1String SourceKey("PROP_SOUR");
constexpr QLatin1String TypeKey("PROP_TYP");
constexpr QLatin1String NameKey("PROP_NAME");
constexpr QLatin1String CaptionKey("PROP_CAP");
} // namespace

void TFObjectPropertyTable::initWith(const QJsonValue &value)
{
    m_properties.clear();
    const QJsonArray elements = value.toObject().value(TFTableName::UpperData).toArray();
    for (const QJsonValue &element : elements) {
        if (!element.isObject())
            continue;
        // A key in another case is known but has no value: it is fetched by its upper-case name.
        const QJsonObject object = element.toObject();
        const auto text = [&object](QLatin1String key) { return object.value(key).toVariant().toString(); };
        m_properties.append({object.value(IdKey).toVariant().toDouble(), text(RelationKey), text(SourceKey),
                             text(TypeKey), text(NameKey), text(CaptionKey)});
    }
}

int TFObjectPropertyTable::tableType() const
{
    return TFTableId::ObjectProperty;
}
