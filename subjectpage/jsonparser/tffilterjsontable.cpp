#include "tffilterjsontable.h"

#include "tfjsontext.h"
#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
using Filter = TFTableModelData::FilterData;

struct TextKey
{
    QLatin1String name;
    QString Filter::*member;
};

constexpr TextKey Texts[] = {
    {QLatin1String("DataSource"), &Filter::DataSource},
    {QLatin1String("DefualtValue"), &Filter::DefualtValue},
    {QLatin1String("FieldName"), &Filter::FieldName},
    {QLatin1String("ShowValue"), &Filter::ShowValue},
    {QLatin1String("Filter"), &Filter::Filter},
    {QLatin1String("Operator"), &Filter::Operator},
    {QLatin1String("NameValues"), &Filter::NameValues},
    {QLatin1String("ValueType"), &Filter::ValueType},
    {QLatin1String("FilterCntrl"), &Filter::FilterCntrl},
    {QLatin1String("ClassName"), &Filter::ClassName},
    {QLatin1String("Value"), &Filter::Value},
    {QLatin1String("Caption"), &Filter::Caption},
    {QLatin1String("ControlParameters"), &Filter::ControlParameters},
    {QLatin1String("DataSourceFilterParams"), &Filter::DataSourceFilterParams},
    {QLatin1String("DataSourceFilter"), &Filter::DataSourceFilter},
    {QLatin1String("DataSourceName"), &Filter::DataSourceName},
};

/// Texts that come as numbers.
constexpr TextKey Numbers[] = {
    {QLatin1String("ParameterCategory"), &Filter::ParameterCategory},
    {QLatin1String("ImageIndex"), &Filter::ImageIndex},
};

constexpr QLatin1String WidthKey("Width");
constexpr QLatin1String BeginGroupKey("BeginGroup");
constexpr QLatin1String UnitCategoryKey("UnitCategory");

Filter readFilter(const QJsonObject &object)
{
    Filter filter;
    for (const TextKey &key : Texts)
        filter.*key.member = object.value(key.name).toString();
    for (const TextKey &key : Numbers)
        filter.*key.member = QString::number(object.value(key.name).toDouble(), 'g', 6);
    filter.Width = object.value(WidthKey).toInt();
    filter.BeginGroup = object.value(BeginGroupKey).toBool();
    filter.UnitCategory = TFJsonText::toInt32(object.value(UnitCategoryKey));
    return filter;
}
} // namespace

void TFFilterJsonTable::initWith(const QJsonValue &value)
{
    m_filters.clear();
    const QJsonArray elements = TFJsonText::parse(value, __FUNCTION__).array();
    for (const QJsonValue &element : elements) {
        if (element.isObject())
            m_filters.append(readFilter(element.toObject()));
    }
}

int TFFilterJsonTable::tableType() const
{
    return TFTableId::Filters;
}
