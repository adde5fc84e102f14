#pragma once

#include <QByteArray>
#include <QVariant>

/// Walks over JSON text whose strictly written parts it knows by itself.
///
/// It is stricter than the toolkit's parser, never looser: what it accepts, that parser accepts and reads
/// alike; at anything else a function returns false, and the whole text is that parser's. The text must be
/// followed by a zero byte, as a QByteArray is, and outlive the cursor.
class TFJsonCursor
{
public:
    /// A text between its quotes.
    struct Text
    {
        const char *begin;
        int length;
        bool isEscaped; ///< has a backslash
        bool isAscii;

        QByteArray quoted() const { return QByteArray::fromRawData(begin - 1, length + 2); }
    };

    TFJsonCursor(const char *begin, const char *end)
        : m_at(begin)
        , m_end(end)
    {}

    const char *at() const { return m_at; }
    /// The next character that is no space.
    char peek()
    {
        while (*m_at == ' ' || *m_at == '\n' || *m_at == '\r' || *m_at == '\t')
            ++m_at;
        return *m_at;
    }
    /// Takes \a character, with the spaces before it.
    bool take(char character)
    {
        if (peek() != character)
            return false;
        ++m_at;
        return true;
    }
    /// Goes on to \a end, which lies behind the value at the cursor, if what ends a value stands there.
    bool endValue(const char *end)
    {
        const bool isEnd = *end == ',' || *end == '}' || *end == ']';
        if (isEnd)
            m_at = end;
        return isEnd;
    }
    /// Takes \a word, which must be next.
    bool takeWord(const char *word, int length);
    bool takeText(Text &text);
    /// Takes an array or an object with all that it holds; it ends where its brackets do, however they pair.
    bool skipNested();
    bool skipValue();

    /// Calls \a member with each key of an object, as text without its value; it takes the value.
    template <typename Member> bool forEachMember(Member member)
    {
        if (!take('{'))
            return false;
        if (take('}'))
            return true;
        do {
            Text key;
            if (peek() != '"' || !takeText(key) || !take(':') || !member(key))
                return false;
        } while (take(','));
        return take('}');
    }

    /// What the toolkit's parser makes of the value in \a json; false where it refuses it.
    static bool parse(const QByteArray &json, QVariant &value);

private:
    const char *m_at;
    const char *m_end;
};
