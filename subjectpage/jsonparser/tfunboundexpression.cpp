#include "tfunboundexpression.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <numeric>

namespace {
constexpr QLatin1String Functions[] = {QLatin1String("SUM"), QLatin1String("AVERAGE"),
                                       QLatin1String("GEOMEAN"), QLatin1String("MAX")};
constexpr QLatin1String SuffixMark("__");

bool isFunction(const QString &name, const char *function)
{
    return name.compare(QLatin1String(function), Qt::CaseInsensitive) == 0;
}

/// Length of the function's name that ends before \a end, 0 when there is none.
int functionBefore(const QString &text, int end)
{
    for (const QLatin1String function : Functions) {
        const int start = end - function.size();
        if (start >= 0 && text.midRef(start, function.size()).compare(function, Qt::CaseInsensitive) == 0)
            return function.size();
    }
    return 0;
}
} // namespace

TFUnboundExpression::TFUnboundExpression(const QString &text)
    : m_text(text)
{
    // The same as the pattern (.*)(SUM|AVERAGE|GEOMEAN|MAX)(\(?)\[(.*)\](\)?)(.*), in linear time.
    const int close = text.lastIndexOf(QLatin1Char(']'));
    int open = close < 0 ? -1 : text.lastIndexOf(QLatin1Char('['), close);
    while (open >= 0 && !m_aggregate) {
        const bool parenthesis = open > 0 && text.at(open - 1) == QLatin1Char('(');
        const int end = parenthesis ? open - 1 : open;
        const int length = functionBefore(text, end);
        if (length > 0) {
            m_aggregate = true;
            m_function = text.mid(end - length, length);
            m_suffix = text.mid(open + 1, close - open - 1);
        }
        open = open == 0 ? -1 : text.lastIndexOf(QLatin1Char('['), open - 1);
    }
}

bool TFUnboundExpression::counts(const QString &key) const
{
    return key.contains(SuffixMark + m_suffix) || key.compare(m_suffix, Qt::CaseInsensitive) != 0;
}

QVariant TFUnboundExpression::aggregate(const QVector<double> &numbers) const
{
    if (m_function.isEmpty() || m_suffix.isEmpty())
        return QVariant();
    return TFAggregate::compute(m_function, numbers);
}

QVariant TFAggregate::compute(const QString &function, const QVector<double> &numbers)
{
    const double count = numbers.size();
    if (isFunction(function, "SUM"))
        return std::accumulate(numbers.begin(), numbers.end(), 0.0);
    if (isFunction(function, "AVGERAGE"))
        return std::accumulate(numbers.begin(), numbers.end(), 0.0) / count;
    if (numbers.isEmpty())
        return QVariant();
    if (isFunction(function, "GEOMEAN"))
        return std::pow(std::accumulate(numbers.begin(), numbers.end(), 1.0, std::multiplies<>()), count);
    if (isFunction(function, "MAX"))
        return *std::max_element(numbers.begin(), numbers.end());
    return QVariant();
}
