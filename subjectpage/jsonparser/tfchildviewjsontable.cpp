#include "tfchildviewjsontable.h"

#include "tfjsontext.h"
#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {
constexpr QLatin1String CaptionKey("Caption");
constexpr QLatin1String ParametersKey("Propertyparams");
/// Holds the view's identifier, its name notwithstanding.
constexpr QLatin1String ViewKey("ObjShowName");
} // namespace

void TFChildViewJsonTable::initWith(const QJsonValue &value)
{
    m_children.clear();
    const QJsonArray elements = TFJsonText::parse(value, __FUNCTION__).array();
    for (const QJsonValue &element : elements) {
        if (!element.isObject())
            continue;
        const QJsonObject object = element.toObject();
        const Child child{object.value(ParametersKey).toString(),
                          object.value(ViewKey).toString().toLongLong(), object.value(CaptionKey).toString()};
        m_children.append(child);
        if (child.objVwId != 0)
            emit sigJsonData(child.objVwId, child.caption);
    }
}

int TFChildViewJsonTable::tableType() const
{
    return TFTableId::ChildViews;
}

QString TFChildViewJsonTable::propertyParams(qint64 objVwId) const
{
    const auto it = std::find_if(m_children.begin(), m_children.end(),
                                 [objVwId](const Child &child) { return child.objVwId == objVwId; });
    return it == m_children.end() ? QString() : it->propertyParams;
}
