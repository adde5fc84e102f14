#pragma once

#include "elementreadfactory.h"
#include "tfplainformula.h"

#include <QHash>
#include <QJSEngine>
#include <QMap>
#include <QObject>
#include <QVariant>

#include <optional>

class TFCustomMath;

/// Evaluates a formula: bracketed field names become the numbers of a row, calls of TFCustomMath their
/// results, and the script engine does the arithmetic of what is then glued together. Formulas of plain
/// arithmetic are compiled once and computed without it, with the same results.
///
/// Costly to make (it owns a script engine): make one and keep it. Not re-entrant; one thread.
class ExpressionParse : public QObject
{
    Q_OBJECT

public:
    explicit ExpressionParse(QObject *parent = nullptr);
    ~ExpressionParse() override;

    /// \a result becomes a variant that converts to a finite double, or invalid for whatever fails: bad
    /// syntax, an unknown name, a division by zero, a formula that the reader can't take apart, a script that
    /// does not end.
    ///
    /// A word at the very start is judged by the last character of the formula before; see reset().
    void parse(const QString &expression, QVariant &result, const QMap<QString, QVariant> &arguments);

    /// The same over fields that are asked for as the formula needs them.
    using FieldValue = TFPlainFormula::FieldValue;
    void parseRow(const QString &expression, QVariant &result, const FieldValue &fieldValue);

    /// The same by the script engine alone, whatever the formula.
    void parseByScript(const QString &expression, QVariant &result, const FieldValue &fieldValue);

    /// Evaluates one call, with or without a leading "$"; calls nest in their one argument. Dates come back
    /// as "yyyy-MM-dd", numbers as text, a failure as an empty text.
    QString evalFunction(const QString &call);

    /// Forgets the formula before, so that the next parse() gives what a new object gives.
    void reset();

private:
    const std::optional<TFPlainFormula> &plainFormula(const QString &expression);

    QString m_formula;
    TFCustomMath *m_functions;
    QJSEngine m_engine;
    ElementReadFactory m_factory;
    QHash<QString, std::optional<TFPlainFormula>> m_plainFormulas;
};
