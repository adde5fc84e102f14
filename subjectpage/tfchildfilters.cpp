#include "tfchildfilters.h"

#include "filterwidget/tffilteroperators.h"

#include <QDate>
#include <QDateTime>

#include <algorithm>

using TFTableModelData::FilterData;

TFChildFilters::TFChildFilters(const QList<FilterParam::Cntrl> &controls, const RowData &row,
                               const QString &linkText)
    : m_controls(controls)
    , m_row(row)
{
    m_links.parse(linkText, row);
}

void TFChildFilters::build(const QList<FilterData> &fields)
{
    for (const FilterData &field : fields) {
        if (field.FieldName.isEmpty())
            continue;
        if (field.Operator.toLower() == QLatin1String("between"))
            addInterval(field.FieldName);
        else
            addField(field);
    }
}

void TFChildFilters::addField(const FilterData &field)
{
    const FilterParam::Cntrl control = linkedControl(field);
    if (control.dataSourceFilter)
        addParameter(control);
    else
        addFilter(control);
}

FilterParam::Cntrl TFChildFilters::linkedControl(const FilterData &field) const
{
    FilterParam::Cntrl control;
    control.key = field.FieldName;
    control.valueType = field.ValueType;
    control.op = TFFilterOperators::serviceWord(field.Operator);
    control.dataSourceFilter =
        field.ClassName != QLatin1String("LabelControl") && field.ParameterCategory == QLatin1String("1");

    const QString source = m_links.target(field.FieldName);
    if (source.isEmpty()) {
        control.value = field.DefualtValue;
        return control;
    }
    if (const TFTableModelData::tagCellValue *found = cell(source)) {
        control.value = found->value;
        if (control.value.type() == QVariant::DateTime)
            control.value = control.value.toString();
        if (control.valueType.isEmpty())
            control.valueType = found->valueType;
    }
    if (control.value.isNull()) {
        const QVariant fromBar = controlValue(source);
        if (fromBar.isValid())
            control.value = fromBar;
    }
    return control;
}

const TFTableModelData::tagCellValue *TFChildFilters::cell(const QString &name) const
{
    const auto hit =
        std::find_if(m_row.begin(), m_row.end(),
                     [&name](const TFTableModelData::tagCellValue &c) { return c.fieldName == name; });
    return hit == m_row.end() ? nullptr : &*hit;
}

QVariant TFChildFilters::controlValue(const QString &key) const
{
    const auto hit = std::find_if(m_controls.begin(), m_controls.end(),
                                  [&key](const FilterParam::Cntrl &c) { return c.key == key; });
    return hit == m_controls.end() ? QVariant() : hit->value;
}

void TFChildFilters::addInterval(const QString &fieldName)
{
    // The name grows with every bound that becomes a filter, across the controls too.
    QString name = fieldName;
    for (const FilterParam::Cntrl &source : qAsConst(m_controls)) {
        if (source.key.isEmpty() || !source.multiField)
            continue;
        const QStringList keys = source.key.split(QLatin1Char(','), Qt::SkipEmptyParts);
        const QStringList values = source.value.toString().split(QLatin1Char(','), Qt::SkipEmptyParts);
        if (keys.isEmpty())
            continue;
        for (int i = 0; i < values.size(); ++i) {
            FilterParam::Cntrl bound;
            bound.key = name;
            bound.index = i;
            bound.value = values.at(i);
            bound.valueType = source.valueType;
            bound.op = i < 2 ? QStringLiteral("<=") : QStringLiteral(">=");
            addBound(bound, source.dataSourceFilter, &name);
        }
    }
}

void TFChildFilters::addBound(const FilterParam::Cntrl &bound, bool isParameter, QString *name)
{
    if (isParameter) {
        addParameter(bound);
        return;
    }
    name->append(bound.op == QLatin1String("<=") ? QLatin1String("_start") : QLatin1String("_end"));
    addFilter(bound, *name);
}

void TFChildFilters::addFilter(const FilterParam::Cntrl &control, const QString &paramName)
{
    FilterParam::CustomFilter filter;
    filter.fieldName = control.key;
    filter.paramName = paramName.isEmpty() ? control.key : paramName;
    filter.op = control.op;
    filter.values = {control.value};
    m_filters.append(filter);
}

void TFChildFilters::addParameter(const FilterParam::Cntrl &control)
{
    if (control.valueType != QLatin1String("DateTime")) {
        m_parameters.append({control.key, control.value});
        return;
    }
    const QString text = control.value.toString().remove(QLatin1Char('='));
    if (QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid()) {
        m_parameters.append({control.key, text});
        return;
    }
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(text.toLongLong());
    m_parameters.append({control.key, moment.toString(QStringLiteral("[yyyy-MM-dd]"))});
}
