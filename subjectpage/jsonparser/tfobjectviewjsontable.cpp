#include "tfobjectviewjsontable.h"

#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
constexpr QLatin1String NameKey("obj_vw_name");
}

void TFObjectViewJsonTable::initWith(const QJsonValue &value)
{
    const QJsonArray elements = value.toArray();
    if (!elements.isEmpty())
        m_name = elements.first().toObject().value(NameKey).toString();
}

int TFObjectViewJsonTable::tableType() const
{
    return TFTableId::ObjectView;
}
