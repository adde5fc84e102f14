#pragma once

#include "tfelement.h"

/// "[name]"; the text is the name without brackets.
class StringTypeReader : public TFElement
{
    Q_OBJECT

public:
    StringTypeReader(const QString &text, int endPosition)
        : TFElement(String, text, endPosition)
    {}
};

/// Digits and ".".
class NumberTypeReader : public TFElement
{
    Q_OBJECT

public:
    NumberTypeReader(const QString &text, int endPosition)
        : TFElement(Number, text, endPosition)
    {}
};

/// A word in an operator position.
class VariableTypeReader : public TFElement
{
    Q_OBJECT

public:
    VariableTypeReader(const QString &text, int endPosition)
        : TFElement(Variable, text, endPosition)
    {}
};

/// One of + - * / %.
class OperatorTypeReader : public TFElement
{
    Q_OBJECT

public:
    OperatorTypeReader(const QString &text, int endPosition);

    /// Place of the operator in the list above, -1 for an empty text. Takes no part in precedence, which is
    /// the script engine's.
    int operatorIndex() const { return m_operatorIndex; }

private:
    int m_operatorIndex;
};

/// A call with everything to its closing parenthesis.
class FunctionTypeReader : public TFElement
{
    Q_OBJECT

public:
    FunctionTypeReader(const QString &text, int endPosition)
        : TFElement(Function, text, endPosition)
    {}
};

/// One of ( ) , :.
class SplitorTypeReader : public TFElement
{
    Q_OBJECT

public:
    SplitorTypeReader(const QString &text, int endPosition)
        : TFElement(Splitor, text, endPosition)
    {}
};

namespace TFCharacters {

/// True for one of ( ) , :.
bool isSplitter(QChar c);
/// Place of the operator in the list + - * / %, or -1.
int operatorIndex(QChar c);
/// True for a character that ends a variable.
bool isStop(QChar c);

} // namespace TFCharacters
