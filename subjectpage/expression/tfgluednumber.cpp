#include "tfgluednumber.h"

#include <cmath>

namespace {
constexpr double Millionth = 1e6;
/// Up to here a number in millionths is a whole number that a double holds exactly.
constexpr double LargestInMillionths = 9e9;
/// From here on a fraction is written with a "." and without an exponent.
constexpr double SmallestFraction = 1e-4;
constexpr qint64 LongestPlain = 1000000;

QString withoutEquals(QString text)
{
    if (text.startsWith(QLatin1Char('=')))
        text.remove(0, 1);
    return text;
}

/// \a number, of at most LargestInMillionths, as it reads after being written with six decimals: halves go
/// away from 0, exactly.
TFGluedNumber inMillionths(double number)
{
    const double size = std::fabs(number);
    const double product = size * Millionth;
    const double lost = std::fma(size, Millionth, -product); // product + lost is exact
    double whole = std::floor(product);
    if ((product - whole - 0.5) + lost >= 0)
        whole += 1;
    return {std::copysign(whole / Millionth, number), number < 0};
}

bool readText(const QString &text, TFGluedNumber &number)
{
    bool isNumber = false;
    number.value = text.toDouble(&isNumber);
    number.hasSign = text.startsWith(QLatin1Char('-'));
    return isNumber && std::isfinite(number.value);
}

bool readFraction(double value, TFGluedNumber &number)
{
    if (std::fabs(value) > LargestInMillionths || value == 0)
        return readText(QString::number(value, 'f'), number);
    number = inMillionths(value);
    return true;
}

bool readWhole(qint64 value, TFGluedNumber &number)
{
    const bool fits = value == qint32(value);
    number = {fits ? double(value) : 0.0, fits && value < 0};
    return true;
}

bool readText(const QVariant &value, TFGluedNumber &number)
{
    const QString text = withoutEquals(value.toString());
    return text.contains(QLatin1Char('.')) ? readFraction(text.toDouble(), number)
                                           : readWhole(text.toInt(), number);
}

bool readDouble(const QVariant &variant, TFGluedNumber &number)
{
    const double value = variant.toDouble();
    const double size = std::fabs(value);
    if (!(size <= LargestInMillionths))
        return readText(variant, number);
    const qint64 whole = qint64(value);
    if (double(whole) != value)
        return size < SmallestFraction ? readText(variant, number) : readFraction(value, number);
    // A whole number that ends in many zeros is written with an exponent, which is no whole number any more.
    const bool isPlain = size < LongestPlain || whole % LongestPlain != 0;
    return isPlain ? readWhole(whole, number) : readText(variant, number);
}
} // namespace

QString TFGluedNumber::text(const QVariant &value)
{
    const QString text = withoutEquals(value.toString());
    return text.contains(QLatin1Char('.')) ? QString::number(text.toDouble(), 'f')
                                           : QString::number(text.toInt());
}

bool TFGluedNumber::read(const QVariant &value, TFGluedNumber &number)
{
    switch (value.userType()) {
    case QMetaType::Double:
        return readDouble(value, number);
    case QMetaType::Int:
    case QMetaType::LongLong:
        return readWhole(value.toLongLong(), number);
    default:
        return readText(value, number);
    }
}
