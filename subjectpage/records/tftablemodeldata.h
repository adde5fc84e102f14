#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

/// Records that travel between the configuration, the parser, the model and the filter bar.
namespace TFTableModelData {

/// One cell of a row, with all that is needed to format, align, sort and link it.
///
/// The defaults are those of a cell that belongs to no column.
struct tagCellValue
{
    QString fieldName;
    QString valueType;
    int textAlignment = 0;
    QString url;
    QString formatString;
    qint64 prevUnitFactor = 1;
    qint64 showUnitFactor = 1;
    double secuId = 0; ///< "SECU_ID" of the row
    qint64 baseShowUnitFactor = -1;
    int unitCategory = -1;
    QString columnType;
    int captionShowType = -1;
    QVariant value;
};

/// One filter control as the configuration describes it; the names are those of the JSON keys.
struct FilterData
{
    QString DefualtValue; ///< spelled so on the wire
    QString FieldName;
    QString ShowValue;
    int Width = 0;
    QString ParameterCategory; ///< "1" is a parameter of the data source, anything else a term of the filter
    bool BeginGroup = false;
    QString Filter;
    QString DataSource;
    QString Operator;
    QString NameValues;
    int UnitCategory = 0;
    QString ValueType;
    QString FilterCntrl;
    QString ClassName;
    QString Value;
    QString ImageIndex;
    QString Caption;
    QString ControlParameters;
    QString DataSourceFilter;
    QString DataSourceFilterParams;
    QString DataSourceName;

    bool operator==(const FilterData &other) const;
    bool operator!=(const FilterData &other) const { return !(*this == other); }
};

} // namespace TFTableModelData

/// One row: a cell for each column in leaf order, then one for each further key of the raw row, sorted by
/// key.
using RowData = QList<TFTableModelData::tagCellValue>;

Q_DECLARE_METATYPE(TFTableModelData::tagCellValue)
Q_DECLARE_METATYPE(RowData)
