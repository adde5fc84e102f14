#include "tfcustommath.h"

#include "records/tfclock.h"

#include <QRegExp>
#include <QStringList>

namespace {
using Arguments = QList<QVariant>;

const QString DateFormat = QStringLiteral("yyyy-MM-dd");
const QString YearFormat = QStringLiteral("yyyy");
const QString Separator = QStringLiteral(",");
constexpr int SecondsAnHour = 3600;
/// A longer list of years or days comes from a date that is none; it is left empty.
constexpr qint64 LongestList = 1000000;
/// Sign, hours and minutes of the zone behind the milliseconds, as in "+0800".
constexpr int ZoneLength = 5;
constexpr int ZoneHoursLength = 3;

/// The date-time of a service date text "/Date(1596124800000+0800)"; the minutes of the zone do not count.
QDateTime serviceDate(const QString &text)
{
    const int open = text.indexOf(QLatin1Char('('));
    const int close = text.lastIndexOf(QLatin1Char(')'));
    if (open < 0 || close < open)
        return QDateTime();
    QString inner = text.mid(open, close - open + 1);
    inner.remove(QLatin1Char('(')).remove(QLatin1Char(')'));
    const int zone = inner.size() - ZoneLength;
    if (zone < 0)
        return QDateTime();
    bool isNumber = false;
    const qint64 milliseconds = inner.left(zone).toLongLong(&isNumber);
    const int hours = inner.mid(zone, ZoneHoursLength).toInt();
    if (!isNumber)
        return QDateTime();
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::OffsetFromUTC, hours * SecondsAnHour);
}

QList<QDateTime> dates(const Arguments &args)
{
    QList<QDateTime> valid;
    for (const QVariant &arg : args) {
        const QDateTime date = serviceDate(arg.toString());
        if (date.isValid())
            valid.append(date);
    }
    return valid;
}

QString yearsBetween(const Arguments &args)
{
    const QList<QDateTime> ends = dates(args);
    if (ends.size() != 2)
        return QString();
    const int years = ends.at(1).date().year() - ends.at(0).date().year();
    if (qAbs(qint64(years)) > LongestList)
        return QString();
    const int step = years >= 1 ? 1 : -1;
    QStringList list;
    for (int i = 0; i <= qAbs(years); ++i)
        list.append(ends.at(0).addYears(step * i).toString(YearFormat));
    return list.join(Separator);
}

QString daysBetween(const Arguments &args)
{
    const QList<QDateTime> ends = dates(args);
    if (ends.size() != 2)
        return QString();
    const qint64 days = ends.at(0).daysTo(ends.at(1));
    if (days > LongestList)
        return QString();
    QStringList list;
    for (qint64 i = 0; i <= days; ++i)
        list.append(ends.at(0).addDays(i).toString(DateFormat));
    return list.join(Separator);
}

QString firstAndLastYear(const Arguments &args)
{
    QList<QDateTime> ends = dates(args);
    if (ends.size() != 2)
        ends = {TFClock::now(), TFClock::now()};
    return QStringLiteral("%1%2%3")
        .arg(ends.at(0).date().year())
        .arg(Separator)
        .arg(ends.at(1).date().year());
}

/// The present moved by the one whole number among \a args, as text; empty for other arguments.
template <typename Move> QString moved(const Arguments &args, Move move)
{
    bool isNumber = false;
    const int count = args.size() == 1 ? args.first().toInt(&isNumber) : 0;
    return isNumber ? move(TFClock::now(), count).toString(DateFormat) : QString();
}

QString addYears(const Arguments &args)
{
    return moved(args, [](const QDateTime &now, int years) { return now.addYears(years); });
}

QString addMonths(const Arguments &args)
{
    return moved(args, [](const QDateTime &now, int months) { return now.addMonths(months); });
}

QString addDays(const Arguments &args)
{
    return moved(args, [](const QDateTime &now, int days) { return now.addDays(days); });
}

QString today(const Arguments &args)
{
    return args.isEmpty() ? TFClock::now().toString(DateFormat) : QString();
}

/// The end of the last year whose annual report must be out: reports are due by the end of April.
QString lastAnnualReport(const Arguments &)
{
    const QDate now = TFClock::now().date();
    const int year = now.month() >= 5 ? now.year() - 1 : now.year() - 2;
    return QDate(year, 12, 31).toString(DateFormat);
}

/// The end of the latest finished quarter.
QDateTime lastQuarterEnd(const Arguments &)
{
    const QDate now = TFClock::now().date();
    const int quarter = (now.month() - 1) / 3;
    const QDate firstOfQuarter(now.year(), 3 * quarter + 1, 1);
    return firstOfQuarter.addDays(-1).startOfDay();
}

double toDecimal(const Arguments &args)
{
    return args.size() == 1 ? args.first().toDouble() : 0.0;
}

double yearOf(const Arguments &args)
{
    const double current = TFClock::now().date().year();
    QRegExp date(QStringLiteral("(\\d+)-(\\d+)-(\\d+)"));
    if (args.size() != 1 || date.indexIn(args.first().toString()) < 0)
        return current;
    bool isNumber = false;
    const int year = date.cap(1).toInt(&isNumber);
    return isNumber ? year : current;
}
} // namespace

TFCustomMath::TFCustomMath()
    : m_textFunctions{{"getyearsbetrweemdate", yearsBetween},
                      {"getdatesbetrweemdate", daysBetween},
                      {"ofbetweenyear", firstAndLastYear},
                      {"addyears", addYears},
                      {"addmonths", addMonths},
                      {"adddays", addDays},
                      {"today", today},
                      {"getlastedyearreport", lastAnnualReport}}
    , m_numberFunctions{{"todecimal", toDecimal}, {"ofyear", yearOf}}
    , m_dateFunctions{{"fndgetlatestphaseyearreport", lastQuarterEnd},
                      {"fndgetlatestquarterlyreport", lastQuarterEnd}}
{}

TFCustomMath *TFCustomMath::instance()
{
    static auto *const functions = new TFCustomMath;
    return functions;
}

bool TFCustomMath::callFunction(const QString &name, const QList<QVariant> &args, QVariant &result)
{
    const QString key = name.toLower().remove(QLatin1Char(' '));
    if (const auto text = m_textFunctions.value(key))
        result = text(args);
    else if (const auto number = m_numberFunctions.value(key))
        result = number(args);
    else if (const auto date = m_dateFunctions.value(key))
        result = date(args);
    else
        return false;
    return true;
}
