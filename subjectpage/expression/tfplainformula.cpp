#include "tfplainformula.h"

#include "tfgluednumber.h"

#include <QVarLengthArray>

#include <cmath>

namespace {
constexpr int MostSteps = 500;
constexpr int DeepestNesting = 50;
constexpr QChar FieldMark(0xfffc);
constexpr QChar End(0);

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

QVariant asScriptGives(double number)
{
    if (!std::isfinite(number))
        return QVariant();
    const bool isInteger = std::fabs(number) <= 2147483648.0 && number == qint32(qint64(number)) &&
                           !(number == 0 && std::signbit(number));
    return isInteger ? QVariant(int(number)) : QVariant(number);
}
} // namespace

/// Reads a formula, each function one rule of its grammar; false where the text does not follow it.
class TFPlainFormulaCompiler
{
public:
    explicit TFPlainFormulaCompiler(const QString &text)
        : m_text(text)
    {}

    bool compile(TFPlainFormula &formula)
    {
        // Doubled signs count something up or down and are an error in front of a number.
        if (m_text.contains(QLatin1String("++")) || m_text.contains(QLatin1String("--")) || !sum() ||
            next() != End || m_position < m_text.size() || m_steps.size() > MostSteps)
            return false;
        formula.m_steps = m_steps;
        return true;
    }

private:
    using Operation = TFPlainFormula::Operation;

    QChar at(int position) const { return position < m_text.size() ? m_text.at(position) : End; }

    QChar next()
    {
        while (at(m_position) == QLatin1Char(' '))
            ++m_position;
        return at(m_position);
    }

    bool take(char c)
    {
        if (next() != QLatin1Char(c))
            return false;
        ++m_position;
        return true;
    }

    bool emitStep(Operation operation)
    {
        m_steps.append({operation});
        return true;
    }

    bool sum()
    {
        bool follows = product();
        while (follows) {
            if (take('+'))
                follows = product() && emitStep(Operation::Add);
            else if (take('-'))
                follows = product() && emitStep(Operation::Subtract);
            else
                return true;
        }
        return false;
    }

    bool product()
    {
        bool follows = factor();
        while (follows) {
            if (take('*'))
                follows = factor() && emitStep(Operation::Multiply);
            else if (take('/'))
                follows = factor() && emitStep(Operation::Divide);
            else if (take('%'))
                follows = factor() && emitStep(Operation::Remainder);
            else
                return true;
        }
        return false;
    }

    bool factor()
    {
        if (++m_depth > DeepestNesting)
            return false;
        bool follows = false;
        if (take('-'))
            follows = factor() && emitStep(Operation::Negate);
        else if (take('+'))
            follows = factor();
        else if (take('('))
            follows = sum() && take(')');
        else
            follows = next() == FieldMark ? field() : number();
        --m_depth;
        return follows;
    }

    bool field()
    {
        const bool isBehindMinus = m_position > 0 && m_text.at(m_position - 1) == QLatin1Char('-');
        ++m_position;
        m_steps.append({Operation::Field, 0, m_fieldCount++, isBehindMinus});
        return true;
    }

    /// Digits, or digits on both sides of one point; a leading 0 would be octal.
    bool number()
    {
        const int start = m_position;
        while (isDigit(at(m_position)))
            ++m_position;
        const int digits = m_position - start;
        if (digits == 0 || (digits > 1 && m_text.at(start) == QLatin1Char('0')))
            return false;
        if (at(m_position) == QLatin1Char('.')) {
            ++m_position;
            const int fraction = m_position;
            while (isDigit(at(m_position)))
                ++m_position;
            if (m_position == fraction)
                return false;
        }
        bool isNumber = false;
        const double value = m_text.mid(start, m_position - start).toDouble(&isNumber);
        m_steps.append({Operation::Number, value});
        return isNumber;
    }

    const QString m_text;
    int m_position = 0;
    int m_depth = 0;
    int m_fieldCount = 0;
    QVector<TFPlainFormula::Step> m_steps;
};

std::optional<TFPlainFormula> TFPlainFormula::compile(const QVector<Piece> &pieces)
{
    TFPlainFormula formula;
    QString text;
    for (const Piece &piece : pieces) {
        if (!piece.isField && (piece.text.contains(FieldMark) || piece.text.contains(End)))
            return std::nullopt;
        text += piece.isField ? QString(FieldMark) : piece.text;
        if (piece.isField)
            formula.m_fields.append(piece.text);
    }
    if (!TFPlainFormulaCompiler(text).compile(formula))
        return std::nullopt;
    return formula;
}

bool TFPlainFormula::evaluate(QVariant &result, const FieldValue &fieldValue) const
{
    QVarLengthArray<double, DeepestNesting> stack;
    for (const Step &step : m_steps) {
        if (step.operation == Operation::Number) {
            stack.append(step.number);
        } else if (step.operation == Operation::Field) {
            const QVariant *value = fieldValue(m_fields.at(step.field));
            TFGluedNumber number;
            if (!value || !TFGluedNumber::read(*value, number))
                return false;
            if (step.isBehindMinus && number.hasSign) {
                result = QVariant();
                return true;
            }
            stack.append(number.value);
        } else if (step.operation == Operation::Negate) {
            stack.last() = -stack.last();
        } else {
            const double right = stack.last();
            stack.removeLast();
            stack.last() = computed(step.operation, stack.last(), right);
            // The script engine loses the sign of a product of 0 where both factors were integers to it.
            if (step.operation == Operation::Multiply && stack.last() == 0 && std::signbit(stack.last()))
                return false;
        }
    }
    result = asScriptGives(stack.last());
    return true;
}

double TFPlainFormula::computed(Operation operation, double left, double right)
{
    switch (operation) {
    case Operation::Add:
        return left + right;
    case Operation::Subtract:
        return left - right;
    case Operation::Multiply:
        return left * right;
    case Operation::Divide:
        return left / right;
    default:
        return std::fmod(left, right);
    }
}
