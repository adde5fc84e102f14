#include "jsonwriter.h"

#include <algorithm>
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

void appendEscapedRuns(QByteArray &out, const char *text, int size)
{
    out += '"';
    const char *run = text;
    const char *end = text + size;
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

bool isAscii(const char *text, int size)
{
    return std::none_of(text, text + size, [](char c) { return static_cast<signed char>(c) < 0; });
}

} // namespace

void appendUtf8(QByteArray &out, const QByteArray &text)
{
    appendEscapedRuns(out, text.constData(), text.size());
}

void appendStored(QByteArray &out, const char *text, int size)
{
    if (isAscii(text, size))
        appendEscapedRuns(out, text, size);
    else
        appendText(out, QString::fromUtf8(text, size));
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

void appendValue(QByteArray &out, const StoredValue &value)
{
    switch (value.kind) {
    case StoredValue::Whole:
        return appendInteger(out, value.whole);
    case StoredValue::Real:
        return appendNumber(out, value.real);
    case StoredValue::Text:
        return appendStored(out, value.text, value.size);
    default:
        out += "null";
    }
}

} // namespace service::json
