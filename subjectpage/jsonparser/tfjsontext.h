#pragma once

class QJsonDocument;
class QJsonValue;

#include <QtGlobal>

/// Reading of JSON that is carried as text, and of numbers that are truncated.
namespace TFJsonText {

/// The document in the text of \a value. Null, with a debug line that begins with \a function, when that is
/// no JSON; a value that is no string counts as an empty text.
QJsonDocument parse(const QJsonValue &value, const char *function);

/// The number without its fraction; the nearest end of the range for one outside of it, 0 for no number.
qint64 toInt64(const QJsonValue &value);
int toInt32(const QJsonValue &value);

} // namespace TFJsonText
