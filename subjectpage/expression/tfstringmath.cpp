#include "tfstringmath.h"

#include <QHash>
#include <QString>

namespace {
using Operation = QString (*)(const QString &, const QString &);

const QString DivisionByZero = QStringLiteral("-99999999");

QString text(double number)
{
    return QStringLiteral("%1").arg(number);
}

QString remainder(const QString &left, const QString &right)
{
    const int divisor = right.toInt();
    if (divisor == 0)
        return DivisionByZero;
    // The smallest number by -1 has no quotient; its remainder is 0 all the same.
    return divisor == -1 ? QStringLiteral("0") : QString::number(left.toInt() % divisor);
}

const QHash<QString, Operation> Operations = {
    {"+", [](const QString &left, const QString &right) { return text(left.toDouble() + right.toDouble()); }},
    {"-", [](const QString &left, const QString &right) { return text(left.toDouble() - right.toDouble()); }},
    {"*", [](const QString &left, const QString &right) { return text(left.toDouble() * right.toDouble()); }},
    {"/",
     [](const QString &left, const QString &right) {
         return right.toInt() == 0 ? DivisionByZero : text(left.toDouble() / right.toDouble());
     }},
    {"%", remainder},
};
} // namespace

QString TFStringMath::calculate(const QString &op, const QString &left, const QString &right)
{
    const Operation operation = Operations.value(op);
    return operation ? operation(left, right) : QString();
}
