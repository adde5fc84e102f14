#include "rowwriter.h"

#include "database.h"
#include "jsonwriter.h"

namespace service {

RowWriter::RowWriter(const Columns &columns)
{
    for (int i = 0; i < columns.names().size(); ++i) {
        QByteArray key;
        json::appendText(key, columns.names().at(i));
        m_keys << key + ':';
        m_kinds << columns.kind(i);
    }
}

void RowWriter::appendValue(QByteArray &out, const QVariant &value, ValueKind kind)
{
    if (kind == ValueKind::Date && value.userType() == QMetaType::QString) {
        if (const auto milliseconds = m_clock.milliseconds(value.toString())) {
            json::appendInteger(out, *milliseconds);
            return;
        }
    }
    if (kind == ValueKind::Text && !value.isNull())
        json::appendText(out, value.toString());
    else
        json::appendVariant(out, value);
}

void RowWriter::appendMember(QByteArray &out, const Cursor &cursor, int column)
{
    out += m_keys.at(column);
    appendValue(out, cursor.value(column), m_kinds.at(column));
}

void RowWriter::appendRow(QByteArray &out, const Cursor &cursor)
{
    char separator = '{';
    for (int i = 0; i < m_keys.size(); ++i) {
        out += separator;
        appendMember(out, cursor, i);
        separator = ',';
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
