#pragma once

#include "records/tftablemodeldata.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QVariant>

// Documents to parse, and rows as text to compare.

inline QString text(const QJsonValue &value)
{
    return QString::fromUtf8(value.isArray() ? QJsonDocument(value.toArray()).toJson()
                                             : QJsonDocument(value.toObject()).toJson());
}

inline QJsonObject column(const QString &name, const QJsonObject &more = {})
{
    QJsonObject field{
        {"FieldName", name}, {"Caption", name}, {"ValueType", "Decimal"}, {"Visible", true}, {"Width", 100}};
    for (auto it = more.begin(); it != more.end(); ++it)
        field.insert(it.key(), it.value());
    return field;
}

/// An entry of the view that carries a table.
inline QJsonObject extension(const QString &name, const QJsonValue &table)
{
    return {{"obj_vw_id", 260}, {"prop_typ", "EXTEND"}, {"prop_name", name}, {"ext_prop_val", text(table)}};
}

/// A document whose columns have their settings in both tables.
inline QJsonObject document(const QJsonArray &columns, const QJsonArray &rows,
                            const QJsonArray &properties = {})
{
    QJsonArray view{extension("Bands", columns)};
    for (const QJsonValue &property : properties)
        view.append(property);
    QJsonArray fields;
    for (const QJsonValue &field : columns)
        fields.append(QJsonObject{{"obj_prop_name", field.toObject().value("FieldName")},
                                  {"vw_sts", "1"},
                                  {"ots_cfg", text(field)}});
    return {{"Data", rows}, {"View_Config", view}, {"Object_View_Config", fields}};
}

/// The values as text, side by side.
template <typename... T> QString line(const T &...values)
{
    return QStringList{QVariant(values).toString()...}.join(' ');
}

inline QString written(const QVariant &value)
{
    return value.isValid() ? QString("%1:%2").arg(value.typeName(), value.toString()) : "-";
}

/// "name=type:value" of each cell.
inline QString written(const RowData &row)
{
    QStringList cells;
    for (const auto &cell : row)
        cells.append(cell.fieldName + '=' + written(cell.value));
    return cells.join(" | ");
}

inline QStringList written(const QList<RowData> &rows)
{
    QStringList lines;
    for (const RowData &row : rows)
        lines.append(written(row));
    return lines;
}
