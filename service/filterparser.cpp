#include "filterparser.h"

#include "filterlexer.h"

#include <QStringList>

namespace service {

namespace {

const int MaxLength = 64 * 1024;
const int MaxConditions = 256;

/// In the order of FilterOperator.
const QStringList &operatorWords()
{
    static const QStringList words{QStringLiteral(">"),    QStringLiteral(">="), QStringLiteral("<"),
                                   QStringLiteral("<="),   QStringLiteral("=="), QStringLiteral("!="),
                                   QStringLiteral("like"), QStringLiteral("in"), QStringLiteral("nin"),
                                   QStringLiteral("&&")};
    return words;
}

QString shown(const FilterToken &token)
{
    return token.kind == FilterToken::End ? QStringLiteral("the end")
                                          : QLatin1Char('"') + token.text + QLatin1Char('"');
}

/// Recursive descent over the words of one text; the first fault ends it.
class Parser
{
public:
    Parser(const QString &text, int depth)
        : m_lexer(text)
        , m_depth(depth)
    {
        advance();
    }

    FilterParse run()
    {
        if (m_token.kind != FilterToken::End) {
            conjunction();
            if (isGood() && m_token.kind != FilterToken::End)
                fail(QStringLiteral("expected \"&&\" or the end, found %1").arg(shown(m_token)));
        }
        if (!isGood())
            m_result.conditions.clear();
        return m_result;
    }

private:
    bool isGood() const { return m_result.fault.isEmpty(); }

    void advance() { m_token = m_lexer.next(); }

    void fail(const QString &text)
    {
        if (!isGood())
            return;
        m_result.fault = m_token.kind == FilterToken::Bad ? m_token.text : text;
        m_result.position = m_token.position;
    }

    void conjunction()
    {
        term();
        while (isGood() && m_token.kind == FilterToken::Symbol && m_token.text == QLatin1String("&&")) {
            advance();
            term();
        }
    }

    void term()
    {
        if (m_token.kind != FilterToken::Open) {
            condition();
            return;
        }
        if (++m_nesting > m_depth)
            return fail(QStringLiteral("more than %1 parentheses deep").arg(m_depth));
        advance();
        conjunction();
        if (isGood() && m_token.kind != FilterToken::Close)
            return fail(QStringLiteral("expected \"&&\" or \")\", found %1").arg(shown(m_token)));
        --m_nesting;
        advance();
    }

    void condition()
    {
        FilterCondition condition;
        condition.field = m_token.text;
        condition.fieldPosition = m_token.position;
        if (m_token.kind != FilterToken::Name)
            return fail(QStringLiteral("expected a field, found %1").arg(shown(m_token)));
        advance();
        if (!readOperator(&condition))
            return;
        condition.operandPosition = m_token.position;
        if (!readOperand(&condition))
            return;
        if (m_result.conditions.size() == MaxConditions)
            return fail(QStringLiteral("more than %1 conditions").arg(MaxConditions));
        m_result.conditions << condition;
        advance();
    }

    bool readOperator(FilterCondition *condition)
    {
        const int index = operatorWords().indexOf(m_token.text);
        const bool isWord = m_token.kind == FilterToken::Symbol || m_token.kind == FilterToken::Name;
        if (!isWord || index < 0) {
            fail(QStringLiteral("unknown operator %1; accepted are %2")
                     .arg(shown(m_token), operatorWords().join(QLatin1Char(' '))));
            return false;
        }
        condition->op = static_cast<FilterOperator>(index);
        advance();
        return true;
    }

    bool readOperand(FilterCondition *condition)
    {
        switch (m_token.kind) {
        case FilterToken::Parameter:
            condition->parameter = m_token.text;
            return true;
        case FilterToken::Number:
            condition->literal = m_token.text.toDouble();
            return true;
        case FilterToken::Text:
            condition->literal = m_token.text;
            return true;
        case FilterToken::Date:
            condition->literal = QLatin1Char('[') + m_token.text + QLatin1Char(']');
            return true;
        default:
            fail(QStringLiteral("expected a parameter or a value, found %1").arg(shown(m_token)));
            return false;
        }
    }

    FilterLexer m_lexer;
    const int m_depth;
    FilterToken m_token;
    FilterParse m_result;
    int m_nesting = 0;
};

} // namespace

FilterParse parseFilter(const QString &text, int depth)
{
    if (text.size() > MaxLength) {
        FilterParse result;
        result.position = MaxLength + 1;
        result.fault = QStringLiteral("longer than %1 characters").arg(MaxLength);
        return result;
    }
    return Parser(text, depth).run();
}

QString operatorText(FilterOperator op)
{
    return operatorWords().at(static_cast<int>(op));
}

} // namespace service
