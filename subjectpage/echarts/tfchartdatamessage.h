#pragma once

#include "tfchartdata.h"

#include <QByteArray>

/// The messages that the chart page draws, each one JSON object in compact form.
namespace TFChartData {

/// Lines, areas, points and columns over one X axis. Hidden series are left out.
QByteArray mixedMessage(const ChartSet &set, const Config &config);

/// One pie a series, one slice a label. Empty where there is no series.
QByteArray pieMessage(const ChartSet &set, const Config &config);

/// One pie a label, one slice a series of that label. Empty where there are no labels or no series.
QByteArray pivotPieMessage(const ChartSet &set, const Config &config);

/// The word of the page for the chart type \a name of a configuration: "line", "scatter", "pie" or "bar", the
/// last also for every name that is not in the table.
QString pageType(const QString &name);

} // namespace TFChartData
