#pragma once

#include "filterwidget/tffilterfactory.h"
#include "records/filterparam.h"
#include "records/tftablemodeldata.h"

/// Turns the selected row of a main view into the filters and parameters of a child view.
class TFChildFilters
{
public:
    /// \a controls are those of the main view's filter bar; \a linkText as TFFilterFactory::parse() takes it.
    TFChildFilters(const QList<FilterParam::Cntrl> &controls, const RowData &row, const QString &linkText);

    /// Adds what each of the child view's filter controls asks for, in order.
    void build(const QList<TFTableModelData::FilterData> &fields);

    QList<FilterParam::DataSourceFilter> parameters() const { return m_parameters; }
    QList<FilterParam::CustomFilter> filters() const { return m_filters; }

private:
    void addField(const TFTableModelData::FilterData &field);
    void addInterval(const QString &fieldName);
    void addBound(const FilterParam::Cntrl &bound, bool isParameter, QString *name);
    FilterParam::Cntrl linkedControl(const TFTableModelData::FilterData &field) const;
    QVariant controlValue(const QString &key) const;
    const TFTableModelData::tagCellValue *cell(const QString &name) const;
    void addFilter(const FilterParam::Cntrl &control, const QString &paramName = QString());
    void addParameter(const FilterParam::Cntrl &control);

    QList<FilterParam::Cntrl> m_controls;
    RowData m_row;
    TFFilterFactory m_links;
    QList<FilterParam::DataSourceFilter> m_parameters;
    QList<FilterParam::CustomFilter> m_filters;
};
