#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// Documents that the benchmarks read: a table of ten texts, fifteen figures and five dates, some 700 bytes a
/// row.
namespace Bench {

constexpr int Columns = 30;
constexpr int ViewId = 260;

QString fieldName(int column);

/// The view's configuration; the first figure is computed by \a unbound when that is not empty.
QJsonObject configuration(const QString &unbound = QString());

/// What a data service answers for \a rows rows of it.
QByteArray reply(int rows);

/// Milliseconds that QJsonDocument::fromJson() takes for \a json, without the end of the document.
double parseTime(const QByteArray &json);

} // namespace Bench
