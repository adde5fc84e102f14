#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <functional>
#include <optional>

/// A formula of plain arithmetic, taken apart once and computed any number of times: numbers, fields,
/// + - * / %, signs and parentheses.
///
/// It gives, bit for bit and with the same type, what the script engine gives for the text that is glued from
/// the formula and the row. Where that can't be proven it gives nothing, and the script engine is to be
/// asked.
class TFPlainFormula
{
public:
    /// The value of a field of the row at hand, null where the row has none. It is read before the next call.
    using FieldValue = std::function<const QVariant *(const QString &field)>;

    /// A piece of a formula, as it stands or to be replaced by the number of the field of that name.
    struct Piece
    {
        QString text;
        bool isField = false;
    };

    /// Nothing where the formula is more than plain arithmetic.
    static std::optional<TFPlainFormula> compile(const QVector<Piece> &pieces);

    /// True when \a result is the formula's value, an int or a double, or invalid where there is none. False,
    /// with \a result left alone, when only the script engine can tell.
    bool evaluate(QVariant &result, const FieldValue &fieldValue) const;

private:
    friend class TFPlainFormulaCompiler;

    enum class Operation { Number, Field, Negate, Add, Subtract, Multiply, Divide, Remainder };

    /// A step of the computation on a stack.
    struct Step
    {
        Operation operation;
        double number = 0; ///< of Operation::Number
        int field = 0;     ///< of Operation::Field: its index
        /// A field right behind a "-": a negative number would make "--" of it, which is an error.
        bool isBehindMinus = false;
    };

    static double computed(Operation operation, double left, double right);

    QVector<Step> m_steps;
    QStringList m_fields;
};
