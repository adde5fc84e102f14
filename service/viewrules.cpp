#include "viewrules.h"

namespace service::rules {

const MemberRules &view()
{
    static const MemberRules rules{
        {"id", MemberType::Whole, true},
        {"name", MemberType::Text, true},
        {"source"},
        {"products", MemberType::Any},
        {"sql", MemberType::Any, true},
        {"params", MemberType::Object},
        {"key", MemberType::Any},
        {"order"},
        {"properties", MemberType::Object},
        {"bands", MemberType::Array},
        {"fields", MemberType::Object},
        {"filters", MemberType::Array},
        {"childViews", MemberType::Array},
        {"chart", MemberType::Object},
        {"cross", MemberType::Object},
        {"block", MemberType::Any},
    };
    return rules;
}

const MemberRules &properties()
{
    static const MemberRules rules = [] {
        MemberRules all;
        for (const char *key : {"isShowRelated",
                                "isShowChild",
                                "IsStat",
                                "IsSeriesDataRelation",
                                "IsOutput",
                                "IsHideState",
                                "IsCellSelect",
                                "IsShowIndicator",
                                "IsGetChartData",
                                "isShowBand",
                                "IsWrap",
                                "isPaged",
                                "IsPagesize",
                                "IsTurnOver",
                                "IsOutputAfterCross",
                                "IsGroupByBand",
                                "IsCrossSortByDesc",
                                "IsCross",
                                "IsHideVertLines",
                                "IsAutoSizeColumns",
                                "IsGroupSortByDesc",
                                "IsGroup",
                                "isAllowExport",
                                "IsOrder",
                                "isShowFilter",
                                "isShowBlock"})
            all << MemberRule{key, MemberType::Flag};
        for (const char *key : {"pageSize", "VGridColumnWidth", "FrozenCount", "BandsLevel"})
            all << MemberRule{key, MemberType::Whole};
        for (const char *key :
             {"WebPageURL", "ObjViewType", "MainViewHeight", "ViewStyle", "VGridTextAlignment",
              "MaxColumnWith", "RowHeaderWith", "VGridRowHeaderType", "VGridColHeaderField", "SectorNum",
              "RootSectorNum", "GroupFormatString", "FieldNameSortGroup", "GroupFields", "BandGroupType",
              "CrossField", "FilterBarType"})
            all << MemberRule{key, MemberType::Text};
        return all;
    }();
    return rules;
}

const MemberRules &column()
{
    static const MemberRules rules{
        {"FieldName"},
        {"Caption", MemberType::Text, false, QString()},
        {"ColumnType", MemberType::Text, false, QStringLiteral("BandedGridColumn")},
        {"ValueType", MemberType::Text, false, QStringLiteral("String")},
        {"Width", MemberType::Number, false, 0},
        {"FormatString", MemberType::Text, false, QString()},
        {"TextAlignment", MemberType::Whole, false, 0},
        {"Visible", MemberType::Flag, false, true},
        {"NoSort", MemberType::Flag, false, false},
        {"UnitCategory", MemberType::Whole, false, 0},
        {"PrevUnitFactor", MemberType::Number, false, 1},
        {"ShowUnitFactor", MemberType::Number, false, 1},
        {"ShowUnit", MemberType::Text, false, QString()},
        {"CaptionShowType", MemberType::Whole, false, 0},
        {"Url", MemberType::Text, false, QString()},
        {"CellStyleExpression", MemberType::Text, false, QString()},
        {"UnboundExpression", MemberType::Text, false, QString()},
        {"StatExpression", MemberType::Text, false, QString()},
        {"children", MemberType::Array},
    };
    return rules;
}

const MemberRules &filter()
{
    static const MemberRules rules = [] {
        MemberRules all{{"ClassName", MemberType::Text, true}};
        for (const char *key : {"FieldName", "Caption", "Operator", "ValueType", "DefualtValue", "NameValues",
                                "ShowValue", "Filter", "DataSource", "FilterCntrl", "Value",
                                "ControlParameters", "DataSourceFilter", "DataSourceName"})
            all << MemberRule{key, MemberType::Text, false, QString()};
        for (const char *key : {"Width", "ParameterCategory", "UnitCategory", "ImageIndex"})
            all << MemberRule{key, MemberType::Number, false, 0};
        all << MemberRule{"BeginGroup", MemberType::Flag, false, false};
        all << MemberRule{"DataSourceFilterParams", MemberType::Object};
        return all;
    }();
    return rules;
}

const MemberRules &childView()
{
    static const MemberRules rules{
        {"view", MemberType::Whole, true},
        {"caption", MemberType::Text, true},
        {"link", MemberType::Object, false, QJsonObject()},
    };
    return rules;
}

const MemberRules &chart()
{
    static const MemberRules rules = [] {
        MemberRules all;
        for (const char *key :
             {"ChartXData", "Title", "YTitle", "ChartType", "XFieldName", "XItemNamesFormat", "Style",
              "XValueType", "DefaultDataChartType", "YSetMinMaxValue", "YSetNullValue"})
            all << MemberRule{key, MemberType::Text};
        for (const char *key : {"XDisplayDataPattern", "XDisplayStep", "AnnoAngle", "LegendPosition"})
            all << MemberRule{key, MemberType::Whole};
        for (const char *key : {"IsSwitchXAxis", "ToolBarVisible", "IsTurnXAxis"})
            all << MemberRule{key, MemberType::Flag};
        all << MemberRule{"ChartDataConfigs", MemberType::Array, true};
        return all;
    }();
    return rules;
}

const MemberRules &chartSeries()
{
    static const MemberRules rules{
        {"FieldName", MemberType::Text, true},
        {"LegendLable"},
        {"LegendLableFormat"},
        {"ChartType"},
        {"ValueFormatString"},
        {"ShowUnit"},
        {"YShaftType"},
        {"DataValues"},
        {"UnitCategory", MemberType::Whole},
        {"PrevUnitFactor", MemberType::Whole, false, 1},
        {"ShowUnitFactor", MemberType::Number, false, 1},
        {"CaptionShowType", MemberType::Whole},
        {"SetStackGroup", MemberType::Whole},
        {"IsVisible", MemberType::Flag, false, true},
    };
    return rules;
}

const MemberRules &cross()
{
    static const MemberRules rules{
        {"rows", MemberType::Array, true},
        {"column", MemberType::Text, true},
        {"values", MemberType::Array, true},
        {"caption", MemberType::Text, false, QStringLiteral("%1")},
        {"columnOrder", MemberType::Text, false, QString()},
    };
    return rules;
}

} // namespace service::rules
