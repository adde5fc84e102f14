#pragma once

#include <QByteArray>
#include <QSet>
#include <QVector>

namespace service {

/// Looks over the JSON text of a request before it is parsed, for what a parser should not be given: brackets
/// that stand too deep, and keys that stand twice in one object. (Of two equal keys the toolkit's parser
/// keeps one value and never frees the other if that is a list or an object.)
///
/// Text that is no JSON is looked over all the same; its faults are the parser's to tell.
class RequestShape
{
public:
    explicit RequestShape(const QByteArray &text)
        : m_text(text)
    {}

    /// What is wrong, with its place, or an empty text.
    QString fault();

private:
    struct Level
    {
        bool isObject;
        bool isKeyNext;
        QSet<QByteArray> keys;
    };

    void takeBracket(char c);
    void takeText();
    QByteArray textFrom(int begin) const;

    const QByteArray &m_text;
    int m_at = 0;
    QVector<Level> m_levels;
    QString m_fault;
};

} // namespace service
