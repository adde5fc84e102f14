#pragma once

#include <QDateTime>
#include <QString>

/// What becomes of texts and dates that go into a sheet.
namespace TFSheetValue {

/// \a text without the characters that a sheet, which is XML, can't hold: controls other than tabulators and
/// line ends, non-characters, halves of a pair; and no longer than a cell holds.
QString caption(const QString &text);

/// The same, and without "\r\n", "\r\r" and the two characters "\u".
QString text(const QString &value);

/// The number by which a sheet knows a local date and time: days, counted as if 1900 had been a leap year.
double serial(const QDateTime &time);

} // namespace TFSheetValue
