#pragma once

#include <QString>
#include <QVariant>

/// Conversion of a value text to the typed value that a request carries.
namespace TFToolsFunc {

/// \a source as the value type \a type, whose letter case does not matter:
///
/// | type       | result                                                                              |
/// |------------|-------------------------------------------------------------------------------------|
/// | "datetime" | the text in square brackets                                                         |
/// | "decimal"  | a 64-bit integer; 0 for whatever is not a whole decimal number, "1.5" included      |
/// | "string"   | the text                                                                            |
/// | "intlist"  | a list of 64-bit integers from parts separated by "," or, where it has none, by ";" |
/// | other      | the text                                                                            |
///
/// Empty or unreadable parts of a list count as 0, and an empty text is a list of one 0.
QVariant valueTrans(const QString &source, const QString &type);

/// The same for a value that may be a list already: the types "intlist" and "stringlist" give \a source
/// unchanged, every other type converts its text.
QVariant valueTrans(const QVariant &source, const QString &type);

} // namespace TFToolsFunc
