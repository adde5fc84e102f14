#pragma once

#include <QList>
#include <QString>

/// The units in which figures can be shown. Built once, with translated names; read-only afterwards.
namespace TFUnits {

struct Unit
{
    int unitCode = 0;
    int exponent = 0;     ///< power of ten of the unit, as the table lists it
    QString unitName;     ///< text of the combo box and of captions
    int unitCategory = 0; ///< units of one category replace one another
};

/// What unitExponentOfCode() gives for a code that is not in the table.
constexpr int UnknownExponent = -100;

const QList<Unit> &all();
/// The units of one category, in table order.
QList<Unit> unitsOfCategory(int category);
/// Code of the first unit of that name, or -1. "元" stands twice: it always gives 1000.
int unitCodeOfName(const QString &name);
/// Name of that unit, or an empty text.
QString unitNameOfCode(int code);
/// Exponent of that unit, or UnknownExponent.
int unitExponentOfCode(int code);

} // namespace TFUnits
