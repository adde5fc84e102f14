#pragma once

class QString;

/// The five binary operations on numbers written as text, for callers that compute without the script engine.
namespace TFStringMath {

/// Result of "left op right" in general format with default precision. Division and remainder by something
/// whose whole number is 0 give "-99999999"; an operator other than + - * / % an empty text.
QString calculate(const QString &op, const QString &left, const QString &right);

} // namespace TFStringMath
