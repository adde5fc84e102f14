#include "tfdecimalformat.h"

#include <QString>

namespace {
constexpr int DefaultPrecision = 2;
constexpr int LargestPrecision = 20;

int digit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9') ? c.unicode() - '0' : -1;
}
} // namespace

int TFDecimalFormat::precision(const QString &formatString)
{
    const int length = formatString.size();
    if (length < 2 || length > 3 || formatString.at(0).toLower() != QLatin1Char('n'))
        return DefaultPrecision;
    const int first = digit(formatString.at(1));
    if (length == 2)
        return first < 0 ? DefaultPrecision : first;
    const int second = digit(formatString.at(2));
    const int number = 10 * first + second;
    return first > 0 && second >= 0 && number <= LargestPrecision ? number : DefaultPrecision;
}
