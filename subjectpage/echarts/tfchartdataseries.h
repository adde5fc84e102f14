#pragma once

#include "tfchartdata.h"

namespace TFChartData {

/// How the millisecond times of a date axis become labels.
enum class DateLabels {
    Always,       ///< a value that is no number counts as 0
    WhereIntegers ///< a value that is no number stands as its text
};

/// Appends to \a set what \a config draws of \a rows, in one of three modes:
///
/// - columns (IsSwitchXAxis false): one series an entry of ChartDataConfigs, one label a row;
/// - rows (IsSwitchXAxis true): one series a row, one label an entry;
/// - pivot pie (IsSwitchXAxis true, a pie): one series of one point a row and entry, one label a row.
///
/// Without any label text there is nothing to draw: the labels are cleared, and in column mode no series is
/// added.
void buildSeries(ChartSet &set, const Rows &rows, const Config &config, DateLabels dateLabels);

/// Whether \a config describes a pie.
bool isPie(const Config &config);

/// \a value rounded by \a format: "N" or "n" and one digit gives the decimals; without a format a value with
/// a fraction gets two; any other format leaves it alone.
double roundedValue(double value, const QString &format);

} // namespace TFChartData
