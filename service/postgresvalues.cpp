#include "postgresvalues.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace service {

namespace {

// From the catalogue of types, where they never change.
enum TypeOid : Oid {
    BoolOid = 16,
    NameOid = 19,
    Int8Oid = 20,
    Int2Oid = 21,
    Int4Oid = 23,
    TextOid = 25,
    Float4Oid = 700,
    Float8Oid = 701,
    UnknownOid = 705,
    BpcharOid = 1042,
    VarcharOid = 1043,
    DateOid = 1082,
    TimestampOid = 1114,
    TimestampTzOid = 1184,
    NumericOid = 1700
};

const int SecondsLength = 19; ///< of yyyy-MM-dd hh:mm:ss, without fractions and zone

/// Where a quoted text or identifier ends that begins at \a at.
int endOfQuoted(const QString &text, int at)
{
    const int end = text.indexOf(text.at(at), at + 1);
    return end < 0 ? text.size() : end + 1;
}

/// The type of a number as a literal of the same value has it.
Oid typeOf(const QVariant &value)
{
    bool isWhole = value.userType() != QMetaType::Double;
    const qint64 number = isWhole ? value.toLongLong(&isWhole) : 0;
    if (!isWhole)
        return Float8Oid;
    return number >= std::numeric_limits<qint32>::min() && number <= std::numeric_limits<qint32>::max()
               ? Int4Oid
               : Int8Oid;
}

StoredValue wholeOrReal(const char *digits, const char *end)
{
    qlonglong whole = 0;
    const auto read = std::from_chars(digits, end, whole);
    if (read.ec == std::errc() && read.ptr == end)
        return StoredValue::ofWhole(whole);
    double real = 0;
    std::from_chars(digits, end, real);
    return StoredValue::ofReal(real);
}

} // namespace

PostgresStatement::PostgresStatement(const BoundSql &sql)
{
    QString text;
    int next = 0;
    for (int at = 0; at < sql.text.size();) {
        const QChar c = sql.text.at(at);
        const bool isQuote = c == QLatin1Char('\'') || c == QLatin1Char('"');
        const int end = isQuote ? endOfQuoted(sql.text, at) : at + 1;
        if (c != QLatin1Char('?')) {
            text += sql.text.midRef(at, end - at);
        } else if (sql.values.value(next).isNull()) {
            // A parameter without a value has no type that could be told; the word has every type.
            text += QStringLiteral("NULL");
            ++next;
        } else {
            append(sql.values.at(next++));
            text += QLatin1Char('$') + QString::number(m_values.size());
        }
        at = end;
    }
    m_text = text.toUtf8();
}

void PostgresStatement::append(const QVariant &value)
{
    const bool isText = value.userType() == QMetaType::QString;
    const QByteArray bytes =
        value.userType() == QMetaType::Bool ? QByteArray::number(value.toInt()) : value.toString().toUtf8();
    m_types.push_back(isText ? static_cast<Oid>(TextOid) : typeOf(value));
    m_isGood = m_isGood && !bytes.contains('\0');
    m_values.push_back(bytes);
}

bool PostgresStatement::send(PGconn *connection) const
{
    std::vector<const char *> values;
    for (const QByteArray &value : m_values)
        values.push_back(value.constData());
    return PQsendQueryParams(connection, m_text.constData(), static_cast<int>(values.size()), m_types.data(),
                             values.data(), nullptr, nullptr, 0) == 1;
}

StoredType storedType(Oid type)
{
    switch (type) {
    case BoolOid:
        return StoredType::Truth;
    case Int2Oid:
    case Int4Oid:
    case Int8Oid:
    case Float4Oid:
    case Float8Oid:
    case NumericOid:
        return StoredType::Number;
    case DateOid:
    case TimestampOid:
    case TimestampTzOid:
        return StoredType::Moment;
    case NameOid:
    case TextOid:
    case UnknownOid:
    case BpcharOid:
    case VarcharOid:
        return StoredType::Text;
    default:
        return StoredType::Other;
    }
}

StoredValue storedValue(const PGresult *result, int row, int column)
{
    if (PQgetisnull(result, row, column))
        return {};
    const char *text = PQgetvalue(result, row, column);
    const int length = PQgetlength(result, row, column);
    switch (PQftype(result, column)) {
    case BoolOid:
        return StoredValue::ofWhole(*text == 't');
    case Int2Oid:
    case Int4Oid:
    case Int8Oid:
    case NumericOid:
        return wholeOrReal(text, text + length);
    case Float4Oid:
    case Float8Oid: {
        double real = 0;
        std::from_chars(text, text + length, real);
        return StoredValue::ofReal(real);
    }
    case TimestampOid:
    case TimestampTzOid:
        return StoredValue::ofText(text, std::min(length, SecondsLength));
    default:
        return StoredValue::ofText(text, length);
    }
}

} // namespace service
