#include "tfrawrowsreader.h"

#include <cmath>
#include <cstring>

namespace {
constexpr int Root = 0;
constexpr int IntegerDigits = 18; ///< any number of that many fits a 64-bit integer
constexpr int ExactDigits = 15;   ///< any decimal of that many is one division of two exact doubles
constexpr double PowersOfTen[ExactDigits + 1] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isContinuation(uchar c)
{
    return (c & 0xc0) == 0x80;
}

/// Length of the well-formed UTF-8 sequence at \a at, or 0.
int sequenceLength(const uchar *at)
{
    if (at[0] < 0x80)
        return 1;
    if (at[0] >= 0xc2 && at[0] < 0xe0)
        return isContinuation(at[1]) ? 2 : 0;
    if (at[0] >= 0xe0 && at[0] < 0xf0) {
        const bool isOverlong = at[0] == 0xe0 && at[1] < 0xa0;
        const bool isSurrogate = at[0] == 0xed && at[1] >= 0xa0;
        return isContinuation(at[1]) && isContinuation(at[2]) && !isOverlong && !isSurrogate ? 3 : 0;
    }
    if (at[0] >= 0xf0 && at[0] < 0xf5) {
        const bool isOutside = (at[0] == 0xf0 && at[1] < 0x90) || (at[0] == 0xf4 && at[1] >= 0x90);
        return isContinuation(at[1]) && isContinuation(at[2]) && isContinuation(at[3]) && !isOutside ? 4 : 0;
    }
    return 0;
}

/// A quote ends the text, so that a sequence never reaches beyond.
bool isUtf8(const char *begin, int length)
{
    const auto *at = reinterpret_cast<const uchar *>(begin);
    const uchar *end = at + length;
    while (at < end) {
        const int step = sequenceLength(at);
        if (step == 0)
            return false;
        at += step;
    }
    return true;
}

/// Resolves the escapes of an ASCII text; false for one that the toolkit reads in a way of its own.
bool unescape(const TFJsonCursor::Text &text, QString &out)
{
    static const QByteArray escapes("\"\\/bfnrt");
    static const QByteArray characters("\"\\/\b\f\n\r\t");
    const char *end = text.begin + text.length;
    for (const char *at = text.begin; at < end; ++at) {
        if (*at != '\\') {
            out.append(QLatin1Char(*at));
        } else if (*++at == 'u') {
            bool isHex = end - at > 4 && at[1] != '+' && at[1] != '-' && at[1] != ' ';
            const ushort unit = isHex ? QByteArray::fromRawData(at + 1, 4).toUShort(&isHex, 16) : ushort(0);
            if (!isHex)
                return false;
            out.append(QChar(unit));
            at += 4;
        } else {
            const int escape = escapes.indexOf(*at);
            if (escape < 0)
                return false;
            out.append(QLatin1Char(characters.at(escape)));
        }
    }
    return true;
}

bool startsWithMark(const TFJsonCursor::Text &text)
{
    return text.length >= 3 && std::memcmp(text.begin, "\xef\xbb\xbf", 3) == 0;
}
} // namespace

TFRawRowsReader::TFRawRowsReader()
    : m_rows(std::make_shared<TFRawRows>())
    , m_nodes(1)
{}

bool TFRawRowsReader::read(TFJsonCursor &cursor)
{
    if (!cursor.take('['))
        return false;
    if (cursor.take(']'))
        return true;
    do {
        if (!readRow(cursor))
            return false;
    } while (cursor.take(','));
    return cursor.take(']');
}

bool TFRawRowsReader::readRow(TFJsonCursor &cursor)
{
    if (!cursor.take('{'))
        return false;
    int node = Root;
    if (!cursor.take('}')) {
        do {
            if (!readKey(cursor, node) || !cursor.take(':') || !readValue(cursor))
                return false;
        } while (cursor.take(','));
        if (!cursor.take('}'))
            return false;
    }
    m_rows->endRow(shapeOf(node));
    return true;
}

bool TFRawRowsReader::readKey(TFJsonCursor &cursor, int &node)
{
    if (cursor.peek() != '"')
        return false;
    const int expected = m_nodes[size_t(node)].next;
    if (expected >= 0) {
        const QByteArray &key = m_nodes[size_t(expected)].key;
        if (cursor.takeWord(key.constData(), key.size())) {
            node = expected;
            return true;
        }
    }
    TFJsonCursor::Text key;
    return cursor.takeText(key) && follow(node, key.quoted());
}

bool TFRawRowsReader::follow(int &node, const QByteArray &key)
{
    const int index = indexOfKey(key);
    if (index < 0)
        return false;
    auto follower = m_followers.constFind({node, index});
    if (follower == m_followers.constEnd()) {
        follower = m_followers.insert({node, index}, int(m_nodes.size()));
        m_nodes.push_back({m_keyIndexes.find(key).key(), index, node, -1, -1});
    }
    m_nodes[size_t(node)].next = *follower;
    node = *follower;
    return true;
}

int TFRawRowsReader::indexOfKey(const QByteArray &key)
{
    const auto known = m_keyIndexes.constFind(key);
    if (known != m_keyIndexes.constEnd())
        return *known;
    QVariant text;
    if (!TFJsonCursor::parse(key, text))
        return -1;
    m_keyIndexes.insert(QByteArray(key.constData(), key.size()), m_keys.size());
    m_keys.append(text.toString());
    return m_keys.size() - 1;
}

int TFRawRowsReader::shapeOf(int node)
{
    int &shape = m_nodes[size_t(node)].shape;
    if (shape < 0) {
        QStringList keys;
        for (int at = node; at != Root; at = m_nodes[size_t(at)].before)
            keys.prepend(m_keys.at(m_nodes[size_t(at)].keyIndex));
        shape = m_rows->addShape(keys);
    }
    return shape;
}

bool TFRawRowsReader::readValue(TFJsonCursor &cursor)
{
    switch (cursor.peek()) {
    case '"':
        return readText(cursor);
    case '[':
    case '{': {
        const char *begin = cursor.at();
        return cursor.skipNested() && readOther(begin, cursor.at());
    }
    case 'n':
        m_rows->values().appendNull();
        return cursor.takeWord("null", 4);
    case 't':
        m_rows->values().appendBool(true);
        return cursor.takeWord("true", 4);
    case 'f':
        m_rows->values().appendBool(false);
        return cursor.takeWord("false", 5);
    default:
        return readNumber(cursor);
    }
}

bool TFRawRowsReader::readText(TFJsonCursor &cursor)
{
    TFJsonCursor::Text text;
    if (!cursor.takeText(text))
        return false;
    if (text.isEscaped || startsWithMark(text)) {
        m_text.resize(0);
        if (!text.isAscii || !unescape(text, m_text))
            return readOther(text.begin - 1, cursor.at());
        m_rows->values().append(m_text);
        return true;
    }
    if (!text.isAscii && !isUtf8(text.begin, text.length))
        return false;
    m_rows->values().appendText(text.begin, text.length);
    return true;
}

bool TFRawRowsReader::readNumber(TFJsonCursor &cursor)
{
    const char *begin = cursor.at();
    const char *at = begin + (*begin == '-');
    const char *digits = at;
    qint64 mantissa = 0;
    while (isDigit(*at) && at - digits < IntegerDigits)
        mantissa = mantissa * 10 + (*at++ - '0');
    const bool isStrict = at > digits && (*digits != '0' || at == digits + 1);
    const char *point = at;
    bool isExact = true;
    if (*at == '.' && isDigit(at[1])) {
        for (++at; isDigit(*at) && at - digits <= ExactDigits; ++at)
            mantissa = mantissa * 10 + (*at - '0');
        isExact = !isDigit(*at);
        while (isDigit(*at))
            ++at;
    }
    if (!isStrict || !cursor.endValue(at)) {
        cursor.skipValue();
        return readOther(begin, cursor.at());
    }
    if (!isExact)
        return readLong(begin, at);
    if (*begin == '-')
        mantissa = -mantissa;
    appendDecimal(mantissa, at == point ? 0 : int(at - point) - 1);
    return true;
}

/// A decimal with more digits than one division gives exactly.
bool TFRawRowsReader::readLong(const char *begin, const char *end)
{
    const double number = QByteArray::fromRawData(begin, int(end - begin)).toDouble();
    if (number == std::trunc(number))
        return readOther(begin, end);
    m_rows->values().appendNumber(number);
    return true;
}

void TFRawRowsReader::appendDecimal(qint64 mantissa, int decimals)
{
    const double number = double(mantissa) / PowersOfTen[decimals];
    // A whole number is an integer however it is written.
    if (decimals == 0)
        m_rows->values().appendInteger(mantissa);
    else if (number == std::trunc(number))
        m_rows->values().appendInteger(qint64(number));
    else
        m_rows->values().appendNumber(number);
}

bool TFRawRowsReader::readOther(const char *begin, const char *end)
{
    QVariant value;
    if (!TFJsonCursor::parse(QByteArray::fromRawData(begin, int(end - begin)), value))
        return false;
    m_rows->values().append(value);
    return true;
}
