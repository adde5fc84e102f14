#include "tfelementreaders.h"

namespace {
const QString Splitters = QStringLiteral("(),:");
const QString Operators = QStringLiteral("+-*/%");
const QString Stops = QStringLiteral("+-*/%<>=&|?:#$(),[]{}\"\r\t\n");
} // namespace

OperatorTypeReader::OperatorTypeReader(const QString &text, int endPosition)
    : TFElement(Operator, text, endPosition)
    , m_operatorIndex(text.isEmpty() ? -1 : TFCharacters::operatorIndex(text.at(0)))
{}

bool TFCharacters::isSplitter(QChar c)
{
    return Splitters.contains(c);
}

int TFCharacters::operatorIndex(QChar c)
{
    return Operators.indexOf(c);
}

bool TFCharacters::isStop(QChar c)
{
    return Stops.contains(c);
}
