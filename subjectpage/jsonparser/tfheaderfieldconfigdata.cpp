#include "tfheaderfieldconfigdata.h"

#include "records/tfcategories.h"
#include "tfheaderfieldkeys.h"
#include "tfjsontext.h"
#include "tfobjectviewconfigtable.h"
#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
constexpr int Shown = 1;
constexpr int AlsoShown = 6;

/// Everything but what the band structure is made of, and the visibility.
void copyDisplaySettings(const HeaderFieldInfo &from, HeaderFieldInfo &to)
{
    to.cellStyleExpression = from.cellStyleExpression;
    to.columnType = from.columnType;
    to.reserved5 = from.reserved5;
    to.formatString = from.formatString;
    to.reserved6 = from.reserved6;
    to.reserved4 = from.reserved4;
    to.noSort = from.noSort;
    to.reserved2 = from.reserved2;
    to.showStatus = from.showStatus;
    to.showUnit = from.showUnit;
    to.showUnitFactor = from.showUnitFactor;
    to.prevUnitFactor = from.prevUnitFactor;
    to.unitCategory = from.unitCategory;
    to.statExpression = from.statExpression;
    to.textAlignment = from.textAlignment;
    to.unboundExpression = from.unboundExpression;
    to.url = from.url;
    to.valueType = from.valueType;
    to.width = from.width;
    to.captionShowType = from.captionShowType;
}
} // namespace

TFHeaderFieldConfigData::TFHeaderFieldConfigData(QObject *parent, bool upperCaseKeys)
    : TFBaseJsonTable(parent)
    , m_upperCaseKeys(upperCaseKeys)
{}

void TFHeaderFieldConfigData::initWith(const QJsonValue &value)
{
    m_fields.clear();
    m_indexOfName.clear();
    const QJsonArray elements = TFJsonText::parse(value, __FUNCTION__).array();
    for (const QJsonValue &element : elements) {
        if (!element.isObject())
            continue;
        m_fields.append(readField(element.toObject()));
        const QString &name = m_fields.last().fieldName;
        if (!m_indexOfName.contains(name))
            m_indexOfName.insert(name, m_fields.size() - 1);
    }
}

int TFHeaderFieldConfigData::tableType() const
{
    return TFTableId::HeaderFields;
}

HeaderFieldInfo TFHeaderFieldConfigData::readField(const QJsonObject &element) const
{
    HeaderFieldInfo info = TFHeaderFieldKeys::read(element, m_upperCaseKeys);
    if (!m_upperCaseKeys)
        info.visible = info.showStatus == Shown || info.showStatus == AlsoShown;
    return info;
}

void TFHeaderFieldConfigData::mergeWith(const TFObjectViewConfigTable *table)
{
    for (HeaderFieldInfo &field : m_fields) {
        const HeaderFieldInfo settings = table ? table->headerFieldInfo(field.fieldName) : HeaderFieldInfo();
        if (settings.fieldName.isEmpty()) {
            qCWarning(lcConfig) << "cant find field name:" << field.fieldName;
            continue;
        }
        copyDisplaySettings(settings, field);
        field.visible = table->isFieldVisible(field.fieldName);
    }
}

HeaderFieldInfo TFHeaderFieldConfigData::headerFieldInfo(const QString &fieldName) const
{
    const int index = m_indexOfName.value(fieldName, -1);
    return index < 0 ? HeaderFieldInfo() : m_fields.at(index);
}
