#pragma once

#include "jsonparser/tfchartviewjsontable.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// Records of the chart data builder: what the rows of a data set become before they become a message.
namespace TFChartData {

using Config = TFChartViewJsonTable::Config;
using SeriesConfig = TFChartViewJsonTable::ChartDataConfig;
/// One map a row, from field name to value.
using Rows = QList<QVariantMap>;

/// One series of the chart.
struct ChartSeries
{
    int index = 0; ///< running number, from 0
    QString xName; ///< field, legend label or text of the X axis, by the mode that made the series
    QString name;  ///< as the legend shows it
    bool visible = false;
    QString chartType; ///< as the configuration names it
    int stackGroup = 0;
    int yAxisSide = 0; ///< 1 for the right axis
    QString valueFormat;
    QStringList xLabels; ///< category labels at the time the series was finished
    QList<double> values;
};

/// What the series step makes: the series and the labels of their categories.
struct ChartSet
{
    QList<ChartSeries> series;
    QStringList labels;

    void clear() { *this = ChartSet(); }
};

} // namespace TFChartData
