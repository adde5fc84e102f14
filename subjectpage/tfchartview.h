#pragma once

#include <QList>
#include <QVariantMap>
#include <QtPlugin>

/// What the containers ask of a view that is a chart. TFMultiCharts answers it beside TFBaseView.
class ITFChartView
{
public:
    virtual ~ITFChartView() = default;
    /// Whether the chart fetches rows of its own; one that does not is fed with those of the main table.
    virtual bool isChartData() const = 0;
    /// Fetches the chart's own rows.
    virtual void requestData() = 0;
    /// Shows \a rows, each a map from field name to value.
    virtual void setRows(const QList<QVariantMap> &rows) = 0;
};

Q_DECLARE_INTERFACE(ITFChartView, "subjectpage.ITFChartView")
