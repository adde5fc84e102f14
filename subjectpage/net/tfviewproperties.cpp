#include "tfviewproperties.h"

#include <QHash>
#include <QJsonObject>
#include <QVariant>

namespace TFUc {

namespace {
using Properties = TFViewProperties;

constexpr QLatin1String NameKey("prop_name");
constexpr QLatin1String ValueKey("prop_val");
constexpr QLatin1String ExtensionKey("ext_prop_val");
const QString True = QStringLiteral("1");

const QHash<QString, bool Properties::*> &flags()
{
    static const QHash<QString, bool Properties::*> members = {
        {"isShowRelated", &Properties::isShowRelated},
        {"isShowChild", &Properties::isShowChild},
        {"IsStat", &Properties::IsStat},
        {"IsSeriesDataRelation", &Properties::IsSeriesDataRelation},
        {"IsOutput", &Properties::IsOutput},
        {"IsHideState", &Properties::IsHideState},
        {"IsCellSelect", &Properties::IsCellSelect},
        {"IsShowIndicator", &Properties::IsShowIndicator},
        {"IsGetChartData", &Properties::IsGetChartData},
        {"isShowBand", &Properties::isShowBand},
        {"IsWrap", &Properties::IsWrap},
        {"isPaged", &Properties::isPaged},
        {"IsPagesize", &Properties::IsPagesize},
        {"IsTurnOver", &Properties::IsTurnOver},
        {"IsOutputAfterCross", &Properties::IsOutputAfterCross},
        {"IsGroupByBand", &Properties::IsGroupByBand},
        {"IsCrossSortByDesc", &Properties::IsCrossSortByDesc},
        {"IsCross", &Properties::IsCross},
        {"IsHideVertLines", &Properties::IsHideVertLines},
        {"IsAutoSizeColumns", &Properties::IsAutoSizeColumns},
        {"IsGroupSortByDesc", &Properties::IsGroupSortByDesc},
        {"IsGroup", &Properties::IsGroup},
        {"isAllowExport", &Properties::isAllowExport},
        {"IsOrder", &Properties::IsOrder},
        {"isShowFilter", &Properties::isShowFilter},
        {"isShowBlock", &Properties::isShowBlock},
    };
    return members;
}

const QHash<QString, QString Properties::*> &extensions()
{
    static const QHash<QString, QString Properties::*> members = {
        {"relatedView", &Properties::relatedView},
        {"childView", &Properties::childView},
        {"filters", &Properties::filters},
        {"ChartViewConfig", &Properties::ChartViewConfig},
        {"Bands", &Properties::Bands},
    };
    return members;
}

const QHash<QString, double Properties::*> &numbers()
{
    static const QHash<QString, double Properties::*> members = {
        {"pageSize", &Properties::pageSize},
        {"VGridColumnWidth", &Properties::VGridColumnWidth},
        {"FrozenCount", &Properties::FrozenCount},
        {"BandsLevel", &Properties::BandsLevel},
    };
    return members;
}

const QHash<QString, QString Properties::*> &texts()
{
    static const QHash<QString, QString Properties::*> members = {
        {"WebPageURL", &Properties::WebPageURL},
        {"ObjViewType", &Properties::ObjViewType},
        {"MainViewHeight", &Properties::MainViewHeight},
        {"ViewStyle", &Properties::ViewStyle},
        {"VGridTextAlignment", &Properties::VGridTextAlignment},
        {"MaxColumnWith", &Properties::MaxColumnWith},
        {"RowHeaderWith", &Properties::RowHeaderWith},
        {"VGridRowHeaderType", &Properties::VGridRowHeaderType},
        {"VGridColHeaderField", &Properties::VGridColHeaderField},
        {"SectorNum", &Properties::SectorNum},
        {"RootSectorNum", &Properties::RootSectorNum},
        {"GroupFormatString", &Properties::GroupFormatString},
        {"FieldNameSortGroup", &Properties::FieldNameSortGroup},
        {"GroupFields", &Properties::GroupFields},
        {"BandGroupType", &Properties::BandGroupType},
        {"CrossField", &Properties::CrossField},
        {"FilterBarType", &Properties::FilterBarType},
        {"Order", &Properties::Order},
    };
    return members;
}

void readRow(const QJsonObject &row, Properties &properties)
{
    const QString name = row.value(NameKey).toString();
    const QJsonValue value = row.value(ValueKey);
    if (const auto flag = flags().value(name))
        properties.*flag = value.toString() == True;
    else if (const auto extension = extensions().value(name))
        properties.*extension = row.value(ExtensionKey).toString();
    else if (const auto number = numbers().value(name))
        properties.*number = value.toVariant().toInt();
    else if (const auto text = texts().value(name))
        properties.*text = value.toString();
}
} // namespace

TFViewProperties readViewProperties(const QJsonArray &rows)
{
    TFViewProperties properties;
    for (const QJsonValue &row : rows)
        readRow(row.toObject(), properties);
    return properties;
}

} // namespace TFUc
