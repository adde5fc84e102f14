#include "tfgluednumber.h"

#include "records/tfrounding.h"

#include <cmath>

namespace {
constexpr int Decimals = 6;
constexpr double LargestWhole = 9e15;
/// From here on a fraction is written with a "." and without an exponent.
constexpr double SmallestFraction = 1e-4;
/// A multiple of it is written with an exponent.
constexpr qint64 ManyZeros = 1000000;

QString withoutEquals(QString text)
{
    if (text.startsWith(QLatin1Char('=')))
        text.remove(0, 1);
    return text;
}

bool readFraction(double value, TFGluedNumber &number)
{
    if (!std::isfinite(value))
        return false;
    number = {TFRounding::toDecimals(value, Decimals), value < 0};
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
    if (!(size <= LargestWhole))
        return readText(variant, number);
    const qint64 whole = qint64(value);
    if (double(whole) != value)
        return size < SmallestFraction ? readText(variant, number) : readFraction(value, number);
    const bool isPlain = whole == 0 || whole % ManyZeros != 0;
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
