#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

/// What a filter bar reports and what a request carries.
namespace FilterParam {

/// What one control of the bar reports.
struct Cntrl
{
    int index = 0;           ///< place of the value inside an expanded control
    bool multiField = false; ///< key, value and op are comma-separated lists to be expanded
    QString op;              ///< operator as the service spells it
    QString aux;             ///< filled by nobody
    QString caption;
    QString objName;   ///< object name of the control, filled by the bar
    QString key;       ///< field or argument; a control with an empty key reports nothing
    QString valueType; ///< "decimal", "string", "datetime", "intlist", "stringList", ...
    QVariant value;
    bool dataSourceFilter = false;
};

/// A top-level key of a request body.
struct DataSourceFilter
{
    QString key;
    QVariant value;
};

/// One condition of the filter text of a request, with its bound values.
struct CustomFilter
{
    QString fieldName;
    QString paramName;
    QString op;
    QList<QVariant> values;
};

} // namespace FilterParam

Q_DECLARE_METATYPE(FilterParam::Cntrl)
Q_DECLARE_METATYPE(FilterParam::DataSourceFilter)
Q_DECLARE_METATYPE(FilterParam::CustomFilter)
