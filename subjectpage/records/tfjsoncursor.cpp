#include "tfjsoncursor.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cstring>

namespace {
/// Far below the limit of the toolkit's parser.
constexpr int MostNested = 400;

bool isPlain(char c)
{
    return uchar(c) >= 0x20 && uchar(c) < 0x80 && c != '"' && c != '\\';
}
} // namespace

bool TFJsonCursor::takeWord(const char *word, int length)
{
    if (m_end - m_at < length || std::memcmp(m_at, word, size_t(length)) != 0)
        return false;
    m_at += length;
    return true;
}

bool TFJsonCursor::takeText(Text &text)
{
    const char *at = m_at + 1;
    text = {at, 0, false, true};
    while (isPlain(*at))
        ++at;
    while (*at != '"') {
        if (uchar(*at) < 0x20)
            return false;
        if (uchar(*at) >= 0x80)
            text.isAscii = false;
        if (*at == '\\') {
            text.isEscaped = true;
            ++at;
            if (uchar(*at) < 0x20 || uchar(*at) >= 0x80)
                return false;
        }
        ++at;
    }
    text.length = int(at - text.begin);
    m_at = at + 1;
    return true;
}

bool TFJsonCursor::skipNested()
{
    int depth = 0;
    do {
        Text text;
        if (*m_at == '"') {
            if (!takeText(text))
                return false;
            continue;
        }
        if (*m_at == '[' || *m_at == '{')
            ++depth;
        else if (*m_at == ']' || *m_at == '}')
            --depth;
        else if (*m_at == '\0')
            return false;
        ++m_at;
    } while (depth > 0 && depth <= MostNested);
    return depth == 0;
}

bool TFJsonCursor::skipValue()
{
    Text text;
    switch (peek()) {
    case '"':
        return takeText(text);
    case '[':
    case '{':
        return skipNested();
    default:
        while (*m_at != '\0' && *m_at != ',' && *m_at != '}' && *m_at != ']')
            ++m_at;
        return *m_at != '\0';
    }
}

bool TFJsonCursor::parse(const QByteArray &json, QVariant &value)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson('[' + json + ']', &error);
    const QJsonArray values = document.array();
    // Nothing where a value should stand makes an empty array.
    if (error.error != QJsonParseError::NoError || values.size() != 1)
        return false;
    value = values.at(0).toVariant();
    return true;
}
