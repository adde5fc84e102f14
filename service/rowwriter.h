#pragma once

#include "columns.h"
#include "storedvalue.h"
#include "wiredate.h"

#include <QByteArray>
#include <QVector>

namespace service {

class Cursor;

/// Writes rows of a statement as JSON objects, column by column as the columns' kinds tell.
class RowWriter
{
public:
    explicit RowWriter(const Columns &columns);

    /// Appends the current row of \a cursor as an object.
    void appendRow(QByteArray &out, const Cursor &cursor);

    /// Appends all rows that \a cursor still has, as an array, and gives their number.
    qint64 appendAll(QByteArray &out, Cursor &cursor);

    /// Appends `"name":value` of one column, without a comma.
    void appendMember(QByteArray &out, const Cursor &cursor, int column);

    /// Appends the value of one column.
    void appendValue(QByteArray &out, const StoredValue &value, ValueKind kind);

private:
    QVector<QByteArray> m_keys; ///< `,"name":` of each column, the first with `{`
    QVector<ValueKind> m_kinds;
    IsoClock m_clock;
};

} // namespace service
