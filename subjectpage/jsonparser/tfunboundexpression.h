#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

/// The expression of a computed column: either an aggregate over the row, as in "SUM([ROE])", or a formula
/// for ExpressionParse.
class TFUnboundExpression
{
public:
    /// An expression is an aggregate when SUM, AVERAGE, GEOMEAN or MAX, in any case, stands before a bracket,
    /// with or without a parenthesis. The last such function and the last "]" count.
    explicit TFUnboundExpression(const QString &text);

    const QString &text() const { return m_text; }
    bool isAggregate() const { return m_aggregate; }
    const QString &function() const { return m_function; }
    const QString &suffix() const { return m_suffix; }

    /// True when the aggregate counts the row's value of \a key: every key but one that equals the suffix.
    bool counts(const QString &key) const;

    /// The aggregate's value; invalid without a function or a suffix, for a function that has no computation,
    /// and for a product or a maximum of nothing.
    QVariant aggregate(const QVector<double> &numbers) const;

private:
    QString m_text;
    QString m_function;
    QString m_suffix;
    bool m_aggregate = false;
};

namespace TFAggregate {

/// "SUM", "AVGERAGE" (spelled so), "GEOMEAN" (the product to the power of the count) and "MAX", in any case;
/// invalid for another name, and for the last two without numbers.
QVariant compute(const QString &function, const QVector<double> &numbers);

} // namespace TFAggregate
