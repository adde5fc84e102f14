#pragma once

/// Rounding as by writing a number and reading the text, without the text.
namespace TFRounding {

/// What QString::number(\a value, 'f', \a decimals) reads as, bit for bit: halves of the exact value go away
/// from 0; of a number that is rounded to 0 the sign stays. \a decimals lies from 0 to 9.
double toDecimals(double value, int decimals);

/// True when QString::number(\a value) has a "."; six significant digits decide that.
bool showsFraction(double value);

} // namespace TFRounding
