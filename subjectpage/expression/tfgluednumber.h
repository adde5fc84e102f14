#pragma once

#include <QString>
#include <QVariant>

/// A field's value as the script engine reads it out of the glued text of a formula.
struct TFGluedNumber
{
    double value = 0;
    bool hasSign = false; ///< the text starts with "-", also that of a number that rounds to 0

    /// The text that stands in the formula for \a value: without one leading "=", a text with a "." as a
    /// number of six decimals, any other as a 32-bit integer. What can't be converted counts as 0, what is
    /// too large for a double as the word "inf".
    static QString text(const QVariant &value);

    /// The number that text() of \a value reads as. False where it reads as none.
    static bool read(const QVariant &value, TFGluedNumber &number);
};
