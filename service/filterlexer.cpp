#include "filterlexer.h"

namespace service {

namespace {

bool isNameCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('.') || c.isSurrogate();
}

bool isSymbolCharacter(QChar c)
{
    return QStringLiteral("<>=!&|").contains(c);
}

} // namespace

FilterToken FilterLexer::next()
{
    while (m_at < m_text.size() && m_text.at(m_at).isSpace())
        ++m_at;
    if (m_at >= m_text.size())
        return token(FilterToken::End, QString(), m_at);
    const QChar c = m_text.at(m_at);
    if (c == QLatin1Char('(') || c == QLatin1Char(')')) {
        ++m_at;
        return token(c == QLatin1Char('(') ? FilterToken::Open : FilterToken::Close, c, m_at - 1);
    }
    if (c == QLatin1Char(':'))
        return parameter();
    if (c == QLatin1Char('\''))
        return quoted(QLatin1Char('\''), FilterToken::Text);
    if (c == QLatin1Char('['))
        return quoted(QLatin1Char(']'), FilterToken::Date);
    if (isSymbolCharacter(c))
        return symbol();
    return word();
}

FilterToken FilterLexer::token(FilterToken::Kind kind, const QString &text, int start) const
{
    FilterToken result;
    result.kind = kind;
    result.text = text;
    result.position = start + 1;
    return result;
}

QString FilterLexer::takeName()
{
    const int start = m_at;
    while (m_at < m_text.size() && isNameCharacter(m_text.at(m_at)))
        ++m_at;
    return m_text.mid(start, m_at - start);
}

FilterToken FilterLexer::word()
{
    const int start = m_at;
    if (m_text.at(m_at) == QLatin1Char('-') || m_text.at(m_at) == QLatin1Char('+'))
        ++m_at;
    const QString name = takeName();
    const QString whole = m_text.mid(start, m_at - start);
    bool isNumber = false;
    whole.toDouble(&isNumber);
    if (isNumber)
        return token(FilterToken::Number, whole, start);
    if (name.isEmpty() || name.size() != whole.size()) {
        m_at = m_text.size();
        return token(FilterToken::Bad, QStringLiteral("unexpected \"%1\"").arg(m_text.at(start)), start);
    }
    return token(FilterToken::Name, name, start);
}

FilterToken FilterLexer::parameter()
{
    const int start = m_at++;
    const QString name = takeName();
    if (name.isEmpty())
        return token(FilterToken::Bad, QStringLiteral("a parameter's name is missing after \":\""), start);
    return token(FilterToken::Parameter, name, start);
}

FilterToken FilterLexer::quoted(QChar close, FilterToken::Kind kind)
{
    const int start = m_at;
    const int end = m_text.indexOf(close, m_at + 1);
    if (end < 0) {
        m_at = m_text.size();
        return token(FilterToken::Bad, QStringLiteral("\"%1\" is missing").arg(close), start);
    }
    m_at = end + 1;
    return token(kind, m_text.mid(start + 1, end - start - 1), start);
}

FilterToken FilterLexer::symbol()
{
    const int start = m_at;
    while (m_at < m_text.size() && isSymbolCharacter(m_text.at(m_at)))
        ++m_at;
    return token(FilterToken::Symbol, m_text.mid(start, m_at - start), start);
}

} // namespace service
