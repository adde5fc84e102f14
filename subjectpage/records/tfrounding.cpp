#include "tfrounding.h"

#include <QString>

#include <cmath>

namespace {
constexpr double PowersOfTen[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
/// Up to here every whole number has a double of its own.
constexpr double LargestExact = 9007199254740992.0;

/// Below each size, how far from a whole number a number must be at least to show a fraction surely.
struct Distance
{
    double size;
    double least;
};
constexpr Distance Distances[] = {{1e1, 1e-5}, {1e2, 1e-4}, {1e3, 1e-3}, {1e4, 1e-2}, {1e5, 1e-1}};
constexpr double SmallestPlain = 1e-4;
constexpr double SmallestWithoutFraction = 100000;
constexpr double LargestWithoutFraction = 999999;

bool textShowsFraction(double value)
{
    return QString::number(value).contains(QLatin1Char('.'));
}
} // namespace

double TFRounding::toDecimals(double value, int decimals)
{
    const double factor = PowersOfTen[decimals];
    const double size = std::fabs(value);
    const double product = size * factor;
    if (!(product < LargestExact) || value == 0)
        return QString::number(value, 'f', decimals).toDouble();
    const double lost = std::fma(size, factor, -product); // product + lost is exact
    double whole = std::floor(product);
    if ((product - whole - 0.5) + lost >= 0)
        whole += 1;
    // Both are exact, so the quotient is the double next to the decimal number.
    return std::copysign(whole / factor, value);
}

bool TFRounding::showsFraction(double value)
{
    const double size = std::fabs(value);
    const double distance = std::fabs(size - std::nearbyint(size));
    if (size >= SmallestWithoutFraction && size <= LargestWithoutFraction)
        return false;
    if (size >= SmallestPlain) {
        for (const Distance &entry : Distances) {
            if (size < entry.size && distance > entry.least)
                return true;
        }
    }
    return textShowsFraction(value);
}
