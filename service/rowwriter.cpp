#include "rowwriter.h"

#include "database.h"
#include "jsonwriter.h"

namespace service {

RowWriter::RowWriter(const Columns &columns)
{
    for (int i = 0; i < columns.names().size(); ++i) {
        QByteArray key;
        json::appendText(key, columns.names().at(i));
        m_keys << (i == 0 ? '{' : ',') + key + ':';
        m_kinds << columns.kind(i);
    }
}

void RowWriter::appendValue(QByteArray &out, const StoredValue &value, ValueKind kind)
{
    if (kind == ValueKind::Date && value.kind == StoredValue::Text) {
        if (const auto milliseconds = m_clock.milliseconds(value.text, value.size))
            return json::appendInteger(out, *milliseconds);
    }
    const bool isNumber = value.kind == StoredValue::Whole || value.kind == StoredValue::Real;
    if (kind == ValueKind::Text && isNumber)
        json::appendText(out, value.toVariant().toString());
    else
        json::appendValue(out, value);
}

void RowWriter::appendMember(QByteArray &out, const Cursor &cursor, int column)
{
    out.append(m_keys.at(column).constData() + 1, m_keys.at(column).size() - 1);
    appendValue(out, cursor.stored(column), m_kinds.at(column));
}

void RowWriter::appendRow(QByteArray &out, const Cursor &cursor)
{
    for (int i = 0; i < m_keys.size(); ++i) {
        out += m_keys.at(i);
        appendValue(out, cursor.stored(i), m_kinds.at(i));
    }
    out += '}';
}

qint64 RowWriter::appendAll(QByteArray &out, Cursor &cursor)
{
    qint64 rows = 0;
    out += '[';
    while (cursor.next()) {
        if (rows++ > 0)
            out += ',';
        appendRow(out, cursor);
    }
    out += ']';
    return rows;
}

} // namespace service
