#pragma once

#include "storedvalue.h"

#include <QByteArray>
#include <QString>

namespace service {

/// Writing of JSON text straight into a buffer. No document is built: rows go from the query to the reply.
namespace json {

/// Appends \a text as a JSON string, quotes included.
void appendText(QByteArray &out, const QString &text);

/// Appends UTF-8 \a text as a JSON string, quotes included.
void appendUtf8(QByteArray &out, const QByteArray &text);

/// Appends what is meant for UTF-8 as a JSON string; bytes that are not become replacement characters.
void appendStored(QByteArray &out, const char *text, int size);

/// Appends the shortest text that reads back as \a number; `null` where it is not finite.
void appendNumber(QByteArray &out, double number);

void appendInteger(QByteArray &out, qint64 number);

/// Appends a value of a database: numbers as numbers, NULL as `null`, all else as text.
void appendValue(QByteArray &out, const StoredValue &value);

} // namespace json
} // namespace service
