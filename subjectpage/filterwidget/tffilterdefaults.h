#pragma once

#include <QDate>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

class QDateTime;

/// Readers of the texts that configure a control: defaults, fixed lists, dates.
namespace TFFilterDefaults {

/// Pairs "name=value" of a text separated by ";". Parts of another shape are left out.
QList<QPair<QString, QString>> nameValues(const QString &text);

/// \a text without any "=".
QString withoutEquals(QString text);

/// The date of a literal: \a text without "=", "date" and quotes, read as yyyy-MM-dd. Invalid where it is
/// none.
QDate literalDate(QString text);

/// True for the form =$name([Caption]), which depends on another control of the bar. The two captures are
/// written to \a function and \a caption where these are given.
bool isDynamic(const QString &text, QString *function = nullptr, QString *caption = nullptr);

/// Name and argument of a call "$name(n)" inside \a text. The argument list is empty or has one element.
bool readCall(const QString &text, QString *function, QList<QVariant> *arguments);

/// Date text as the service takes it: "/Date(", milliseconds since the epoch, sign and hhmm of the zone, ")".
/// The zone is that of the system at that moment. The common form's last slash is not written.
QString serviceDateText(const QDateTime &moment);

/// Years from the present one down to \a first, each with the suffix of a year.
QStringList yearsDownTo(int first);

/// The months 1 to 12, each with the suffix of a month.
QStringList months();

QString yearSuffix();
QString monthSuffix();

} // namespace TFFilterDefaults
