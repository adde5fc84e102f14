#pragma once

#include "records/tftablemodeldata.h"

using Row = TFTableModelData::FilterData;

/// The row of a control that makes conditions; its caption is its field.
inline Row row(const QString &className, const QString &field, const QString &value = {},
               const QString &type = QStringLiteral("string"), const QString &op = QStringLiteral("="))
{
    Row r;
    r.ClassName = className;
    r.FieldName = field;
    r.Caption = field;
    r.DefualtValue = value;
    r.ValueType = type;
    r.Operator = op;
    r.ParameterCategory = "2";
    return r;
}

inline Row withNames(Row r, const QString &nameValues)
{
    r.NameValues = nameValues;
    return r;
}

/// A value that a control reports; a list stands in brackets.
inline QString text(const QVariant &value)
{
    const int type = value.userType();
    return type == QMetaType::QVariantList || type == QMetaType::QStringList
               ? '[' + value.toStringList().join('|') + ']'
               : value.toString();
}
