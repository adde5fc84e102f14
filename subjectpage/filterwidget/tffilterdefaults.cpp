#include "tffilterdefaults.h"

#include "records/tfclock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRegExp>
#include <QTimeZone>
#include <QVariant>

#include <cstdlib>

namespace TFFilterDefaults {

QList<QPair<QString, QString>> nameValues(const QString &text)
{
    QList<QPair<QString, QString>> pairs;
    for (const QString &part : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList pieces = part.split(QLatin1Char('='), Qt::SkipEmptyParts);
        if (pieces.size() == 2)
            pairs.append({pieces.at(0), pieces.at(1)});
    }
    return pairs;
}

QString withoutEquals(QString text)
{
    return text.remove(QLatin1Char('='));
}

QDate literalDate(QString text)
{
    text = withoutEquals(text).remove(QLatin1String("date")).remove(QLatin1Char('\''));
    return QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
}

bool isDynamic(const QString &text, QString *function, QString *caption)
{
    QRegExp form(QStringLiteral("^(=\\$)(\\w+)\\(\\[(.+)\\]\\)"));
    if (form.indexIn(text) < 0)
        return false;
    if (function)
        *function = form.cap(2);
    if (caption)
        *caption = form.cap(3);
    return true;
}

bool readCall(const QString &text, QString *function, QList<QVariant> *arguments)
{
    QRegExp form(QStringLiteral("\\$([\\w,\\d]+)\\((-?\\d*)\\)"));
    if (form.indexIn(text) < 0)
        return false;
    *function = form.cap(1);
    arguments->clear();
    if (!form.cap(2).isEmpty())
        arguments->append(form.cap(2));
    return true;
}

QString serviceDateText(const QDateTime &moment)
{
    const int offset = QTimeZone::systemTimeZone().offsetFromUtc(moment);
    return QStringLiteral("/Date(%1%2%3)")
        .arg(moment.toMSecsSinceEpoch())
        .arg(offset < 0 ? QLatin1Char('-') : QLatin1Char('+'))
        .arg(QTime(0, 0).addSecs(std::abs(offset)).toString(QStringLiteral("hhmm")));
}

QString yearSuffix()
{
    return QCoreApplication::translate("TFFilterDefaults", "年");
}

QString monthSuffix()
{
    return QCoreApplication::translate("TFFilterDefaults", "月");
}

QStringList yearsDownTo(int first)
{
    QStringList years;
    for (int year = TFClock::now().date().year(); year >= first; --year)
        years.append(QString::number(year) + yearSuffix());
    return years;
}

QStringList months()
{
    QStringList texts;
    for (int month = 1; month <= 12; ++month)
        texts.append(QString::number(month) + monthSuffix());
    return texts;
}

} // namespace TFFilterDefaults
