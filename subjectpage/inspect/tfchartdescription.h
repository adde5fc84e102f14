#pragma once

class QJsonObject;
class QString;
class TFMultiCharts;

/// A chart view's own part of a description.
namespace TFChartDescription {

/// What went to the chart page; the keys of a table are there and empty.
QJsonObject describe(const TFMultiCharts &chart);
/// "noData" or "shown".
QString state(const TFMultiCharts &chart);

} // namespace TFChartDescription
