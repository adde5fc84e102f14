#pragma once

#include "tfchartdata.h"

#include <QPair>

namespace TFChartData {

/// Values of XDisplayDataPattern. Any other selects nothing.
enum RowPattern { AllRows = 1, FirstRows = 2, EveryNthRow = 3, LastRows = 4 };

/// What the ordering of rows looks at in the view's properties.
struct ViewTraits
{
    bool isOrder = false;
    bool isGetChartData = true;
    QPair<QString, QVariant> order; ///< "order" and a JSON object of field name to 1 or -1
};

/// The rows that the chart shows, by XDisplayDataPattern and XDisplayStep. One row or none is never cut.
Rows selectRows(const Rows &rows, const Config &config);

/// The rows in the order in which the series take them: as they stand for text axes, switched axes and charts
/// that the service ordered, otherwise sorted by the X axis or by the first field of the view's order.
Rows orderRows(const Rows &rows, const Config &config, const ViewTraits &view);

/// Makes one entry of ChartDataConfigs for each group of a cross table.
///
/// Columns of a cross table are named by a group, two underscores and a field; the groups are read off the
/// first row. An entry whose field has no column is left out. Without rows or columns \a config comes back.
Config expandCross(const Rows &rows, const Config &config);

} // namespace TFChartData
