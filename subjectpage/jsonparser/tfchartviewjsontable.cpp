#include "tfchartviewjsontable.h"

#include "tfjsontext.h"
#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
using Config = TFChartViewJsonTable::Config;
using Series = TFChartViewJsonTable::ChartDataConfig;

template <typename Record, typename Value> struct Key
{
    QLatin1String name;
    Value Record::*member;
};

constexpr Key<Config, QString> ConfigTexts[] = {
    {QLatin1String("ChartXData"), &Config::ChartXData},
    {QLatin1String("Title"), &Config::Title},
    {QLatin1String("YTitle"), &Config::YTitle},
    {QLatin1String("ChartType"), &Config::ChartType},
    {QLatin1String("XFieldName"), &Config::XFieldName},
    {QLatin1String("XItemNamesFormat"), &Config::XItemNamesFormat},
    {QLatin1String("Style"), &Config::Style},
    {QLatin1String("XValueType"), &Config::XValueType},
    {QLatin1String("DefaultDataChartType"), &Config::DefaultDataChartType},
    {QLatin1String("YSetMinMaxValue"), &Config::YSetMinMaxValue},
    {QLatin1String("YSetNullValue"), &Config::YSetNullValue},
};
constexpr Key<Config, int> ConfigIntegers[] = {
    {QLatin1String("XDisplayDataPattern"), &Config::XDisplayDataPattern},
    {QLatin1String("XDisplayStep"), &Config::XDisplayStep},
    {QLatin1String("AnnoAngle"), &Config::AnnoAngle},
    {QLatin1String("LegendPosition"), &Config::LegendPosition},
};
constexpr Key<Config, bool> ConfigFlags[] = {
    {QLatin1String("IsSwitchXAxis"), &Config::IsSwitchXAxis},
    {QLatin1String("ToolBarVisible"), &Config::ToolBarVisible},
    {QLatin1String("IsTurnXAxis"), &Config::IsTurnXAxis},
};
constexpr QLatin1String SeriesKey("ChartDataConfigs");

constexpr Key<Series, QString> SeriesTexts[] = {
    {QLatin1String("DataValues"), &Series::DataValues},
    {QLatin1String("FieldName"), &Series::FieldName},
    {QLatin1String("LegendLable"), &Series::LegendLable},
    {QLatin1String("LegendLableFormat"), &Series::LegendLableFormat},
    {QLatin1String("ChartType"), &Series::ChartType},
    {QLatin1String("ValueFormatString"), &Series::ValueFormatString},
    {QLatin1String("ShowUnit"), &Series::ShowUnit},
    {QLatin1String("YShaftType"), &Series::YShaftType},
};
constexpr Key<Series, int> SeriesIntegers[] = {
    {QLatin1String("UnitCategory"), &Series::UnitCategory},
    {QLatin1String("PrevUnitFactor"), &Series::PrevUnitFactor},
    {QLatin1String("CaptionShowType"), &Series::CaptionShowType},
    {QLatin1String("SetStackGroup"), &Series::SetStackGroup},
};
constexpr QLatin1String IsVisibleKey("IsVisible");
constexpr QLatin1String ShowUnitFactorKey("ShowUnitFactor");

template <typename Record, size_t Texts, size_t Integers>
void readCommon(const QJsonObject &object, Record &record, const Key<Record, QString> (&texts)[Texts],
                const Key<Record, int> (&integers)[Integers])
{
    for (const auto &key : texts)
        record.*key.member = object.value(key.name).toString();
    for (const auto &key : integers)
        record.*key.member = object.value(key.name).toInt();
}

Series readSeries(const QJsonObject &object)
{
    Series series;
    readCommon(object, series, SeriesTexts, SeriesIntegers);
    series.IsVisible = object.value(IsVisibleKey).toBool();
    series.ShowUnitFactor = object.value(ShowUnitFactorKey).toDouble();
    return series;
}
} // namespace

void TFChartViewJsonTable::initWith(const QJsonValue &value)
{
    m_config = Config();
    const QJsonObject object = TFJsonText::parse(value, __FUNCTION__).object();
    readCommon(object, m_config, ConfigTexts, ConfigIntegers);
    for (const auto &key : ConfigFlags)
        m_config.*key.member = object.value(key.name).toBool();
    const QJsonArray series = object.value(SeriesKey).toArray();
    for (const QJsonValue &element : series)
        m_config.ChartDataConfigs.append(readSeries(element.toObject()));
}

int TFChartViewJsonTable::tableType() const
{
    return TFTableId::ChartView;
}
