#pragma once

#include <QVariant>

#include <deque>
#include <memory>
#include <vector>

/// A growing list of values in 16 bytes each; texts lie in blocks of UTF-8, and a value that is neither a
/// number nor a text lies beside.
///
/// at() gives each value back as it was appended, type and null state included.
class TFValueList
{
public:
    size_t size() const { return m_values.size(); }

    QVariant at(size_t index) const;
    /// at(\a index).toDouble(), without making a text of a text.
    double number(size_t index) const;

    void append(const QVariant &value);
    void appendNull() { m_values.push_back({{0}, 0, Kind::Null}); }
    void appendBool(bool value) { m_values.push_back({{value}, 0, Kind::Bool}); }
    void appendInteger(qint64 value) { m_values.push_back({{value}, 0, Kind::Integer}); }
    void appendNumber(double value);
    /// \a utf8 must be valid and not begin with a byte order mark; it is copied.
    void appendText(const char *utf8, int length);

private:
    enum class Kind : quint8 { Invalid, Null, Bool, Integer, Number, Text, Other };

    struct Value
    {
        union {
            qint64 integer; ///< also a bool, and the place among the others
            double number;
            const char *text;
        };
        int length;
        Kind kind;
    };
    static_assert(sizeof(Value) == 16);

    const char *keep(const char *text, int length);

    std::deque<Value> m_values;
    std::vector<QVariant> m_others;
    std::vector<std::unique_ptr<char[]>> m_blocks; ///< of texts; they never move
    char *m_free = nullptr;                        ///< in the last block
    int m_freeBytes = 0;
};
