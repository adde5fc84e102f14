#pragma once

#include "tfbasejsontable.h"

#include <QList>
#include <QString>

/// The chart description of a view.
class TFChartViewJsonTable : public TFBaseJsonTable
{
    Q_OBJECT

public:
    /// One series; the names are those of the JSON keys.
    struct ChartDataConfig
    {
        QString DataValues;
        QString FieldName;
        QString LegendLable;
        QString LegendLableFormat;
        QString ChartType;
        QString ValueFormatString;
        bool IsVisible = false;
        int UnitCategory = 0;
        int PrevUnitFactor = 0; ///< 0 for a number with a fraction
        double ShowUnitFactor = 0;
        QString ShowUnit;
        int CaptionShowType = 0;
        QString YShaftType;
        int SetStackGroup = 0;
    };

    /// The whole description; the names are those of the JSON keys.
    struct Config
    {
        QString ChartXData;
        QString Title;
        QString YTitle;
        int XDisplayDataPattern = 0;
        int XDisplayStep = 0;
        QString ChartType;
        QString XFieldName;
        QString XItemNamesFormat;
        bool IsSwitchXAxis = false;
        QList<ChartDataConfig> ChartDataConfigs;
        QString Style;
        int AnnoAngle = 0;
        bool ToolBarVisible = false;
        int LegendPosition = 0;
        bool IsTurnXAxis = false;
        QString XValueType;
        QString DefaultDataChartType;
        QString YSetMinMaxValue;
        QString YSetNullValue;
    };

    using TFBaseJsonTable::TFBaseJsonTable;

    void initWith(const QJsonValue &value) override;
    int tableType() const override;

    Config config() const { return m_config; }

private:
    Config m_config;
};
