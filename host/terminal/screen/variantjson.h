#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVariant>

/// Variants as JSON and back.
///
/// Kept are nothing (null), truth values, whole numbers of 64 bits, fractions, texts, lists and maps. A list
/// of texts comes back as a list of variants, a fraction without decimals as a whole number. Dates, times and
/// addresses become texts. JSON numbers are exact up to 2^53 only: a larger whole number is written as
/// {"$int": "9007199254740993"}, and a map whose one key begins with "$" as {"$map": {...}}.
namespace VariantJson {

/// \a path names the place for \a problems, which takes a line for each value that has no form in JSON; null
/// is written for it.
QJsonValue write(const QVariant &value, const QString &path, QStringList *problems);

/// A value that cannot be read becomes an invalid variant and a line in \a problems.
QVariant read(const QJsonValue &json, const QString &path, QStringList *problems);

} // namespace VariantJson
