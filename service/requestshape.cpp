#include "requestshape.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace service {

namespace {
constexpr int MaxNesting = 16;
}

QString RequestShape::fault()
{
    for (m_at = 0; m_at < m_text.size() && m_fault.isEmpty(); ++m_at) {
        const char c = m_text.at(m_at);
        if (c == '"')
            takeText();
        else if (c == ',' && !m_levels.isEmpty())
            m_levels.last().isKeyNext = m_levels.last().isObject;
        else
            takeBracket(c);
    }
    return m_fault;
}

void RequestShape::takeBracket(char c)
{
    if ((c == '}' || c == ']') && !m_levels.isEmpty())
        m_levels.removeLast();
    if (c != '{' && c != '[')
        return;
    if (m_levels.size() == MaxNesting)
        m_fault = QStringLiteral("nested more than %1 deep").arg(MaxNesting);
    m_levels.append({c == '{', c == '{', {}});
}

/// Leaves the place at the closing quote.
void RequestShape::takeText()
{
    const int begin = m_at;
    for (++m_at; m_at < m_text.size() && m_text.at(m_at) != '"'; ++m_at) {
        if (m_text.at(m_at) == '\\')
            ++m_at;
    }
    if (m_levels.isEmpty() || !m_levels.last().isKeyNext)
        return;
    Level &level = m_levels.last();
    level.isKeyNext = false;
    const QByteArray key = textFrom(begin);
    if (level.keys.contains(key))
        m_fault =
            QStringLiteral("byte %1: the key \"%2\" stands twice").arg(begin + 1).arg(QString::fromUtf8(key));
    level.keys.insert(key);
}

/// The text between the quotes as it reads, so that one written with escapes is no other.
QByteArray RequestShape::textFrom(int begin) const
{
    const QByteArray quoted = m_text.mid(begin, m_at + 1 - begin);
    if (!quoted.contains('\\'))
        return quoted.mid(1, quoted.size() - 2);
    return QJsonDocument::fromJson('[' + quoted + ']').array().at(0).toString().toUtf8();
}

} // namespace service
