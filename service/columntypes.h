#pragma once

#include <QString>

namespace service {

/// How a column's values are compared and written.
enum class ValueKind {
    Any,    ///< not declared: as the database gives it
    Text,   ///< always written as text
    Number, ///< compared as a number
    Date    ///< ISO text in the database, epoch milliseconds on the wire
};

/// The kind that a configured value type stands for.
ValueKind kindOfType(const QString &valueType);

/// What a column holds in the database, where the database tells.
enum class StoredType {
    Unknown, ///< any value in any row, as in SQLite
    Number,
    Text,
    Moment, ///< a date, with or without a time of day
    Truth,  ///< true or false, which travels as 1 or 0
    Other   ///< anything else, which travels as its text
};

/// An output column of a statement, with its name in the database.
struct StoredColumn
{
    QString name;
    StoredType type = StoredType::Unknown;
};

} // namespace service
