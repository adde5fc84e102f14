#include "jsonwriter.h"

#include <charconv>
#include <cmath>

namespace service::json {

namespace {

const char HexDigits[] = "0123456789abcdef";

void appendEscaped(QByteArray &out, char c)
{
    switch (c) {
    case '"':
        out += "\\\"";
        break;
    case '\\':
        out += "\\\\";
        break;
    case '\n':
        out += "\\n";
        break;
    case '\r':
        out += "\\r";
        break;
    case '\t':
        out += "\\t";
        break;
    default:
        out += "\\u00";
        out += HexDigits[(c >> 4) & 15];
        out += HexDigits[c & 15];
    }
}

bool needsEscape(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

} // namespace

void appendUtf8(QByteArray &out, const QByteArray &text)
{
    out += '"';
    const char *run = text.constData();
    const char *end = run + text.size();
    for (const char *at = run; at != end; ++at) {
        if (!needsEscape(*at))
            continue;
        out.append(run, static_cast<int>(at - run));
        appendEscaped(out, *at);
        run = at + 1;
    }
    out.append(run, static_cast<int>(end - run));
    out += '"';
}

void appendText(QByteArray &out, const QString &text)
{
    appendUtf8(out, text.toUtf8());
}

void appendNumber(QByteArray &out, double number)
{
    if (!std::isfinite(number)) {
        out += "null";
        return;
    }
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out.append(digits, static_cast<int>(end - digits));
}

void appendInteger(QByteArray &out, qint64 number)
{
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out.append(digits, static_cast<int>(end - digits));
}

void appendVariant(QByteArray &out, const QVariant &value)
{
    if (value.isNull()) {
        out += "null";
        return;
    }
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        appendInteger(out, value.toLongLong());
        break;
    case QMetaType::Double:
    case QMetaType::Float:
        appendNumber(out, value.toDouble());
        break;
    default:
        appendText(out, value.toString());
    }
}

} // namespace service::json
