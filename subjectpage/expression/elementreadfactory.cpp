#include "elementreadfactory.h"

#include "tfelementreaders.h"

ElementReadFactory::ElementReadFactory(QObject *parent)
    : QObject(parent)
{}

void ElementReadFactory::setSource(const QString &source)
{
    m_source = source;
}

TFElement *ElementReadFactory::readElement(int position)
{
    if (position < 0 || position >= m_source.size())
        return nullptr;
    const Token token = readToken(position);
    switch (token.type) {
    case TFElement::String:
        return new StringTypeReader(token.text, token.endPosition);
    case TFElement::Number:
        return new NumberTypeReader(token.text, token.endPosition);
    case TFElement::Operator:
        return new OperatorTypeReader(token.text, token.endPosition);
    case TFElement::Function:
        return new FunctionTypeReader(token.text, token.endPosition);
    case TFElement::Splitor:
        return new SplitorTypeReader(token.text, token.endPosition);
    case TFElement::Variable:
        break;
    }
    return new VariableTypeReader(token.text, token.endPosition);
}

ElementReadFactory::Token ElementReadFactory::readToken(int position)
{
    const QChar c = m_source.at(position);
    Token token;
    if (c.isDigit())
        token = readNumber(position);
    else if (startsFunction(c))
        token = readFunction(position);
    else if (c == QLatin1Char('['))
        token = readString(position);
    else if (TFCharacters::isSplitter(c))
        token = {c, position, TFElement::Splitor};
    else if (TFCharacters::operatorIndex(c) >= 0)
        token = {c, position, TFElement::Operator};
    else
        token = readVariable(position);
    if (token.endPosition >= 0)
        m_lastRead = m_source.at(token.endPosition);
    return token;
}

void ElementReadFactory::skip(const QString &source)
{
    if (!source.isEmpty())
        m_lastRead = source.at(source.size() - 1);
}

bool ElementReadFactory::startsFunction(QChar c) const
{
    return c.isLetter() && (m_lastRead.isNull() || TFCharacters::isSplitter(m_lastRead));
}

ElementReadFactory::Token ElementReadFactory::readNumber(int position) const
{
    int end = position;
    while (end < m_source.size() && (m_source.at(end).isDigit() || m_source.at(end) == QLatin1Char('.')))
        ++end;
    return {m_source.mid(position, end - position), end - 1, TFElement::Number};
}

ElementReadFactory::Token ElementReadFactory::readFunction(int position) const
{
    int opened = 0;
    int closed = 0;
    int end = position;
    while (end < m_source.size()) {
        const QChar c = m_source.at(end++);
        if (c == QLatin1Char('('))
            ++opened;
        else if (c == QLatin1Char(')') && ++closed == opened)
            break;
    }
    return {m_source.mid(position, end - position), end - 1, TFElement::Function};
}

ElementReadFactory::Token ElementReadFactory::readString(int position) const
{
    const int bracket = m_source.indexOf(QLatin1Char(']'), position);
    const int end = bracket < 0 ? m_source.size() : bracket;
    const int last = bracket < 0 ? m_source.size() - 1 : bracket;
    return {m_source.mid(position + 1, end - position - 1), last, TFElement::String};
}

ElementReadFactory::Token ElementReadFactory::readVariable(int position) const
{
    int end = position;
    while (end < m_source.size() && !TFCharacters::isStop(m_source.at(end)))
        ++end;
    return {m_source.mid(position, end - position), end - 1, TFElement::Variable};
}
