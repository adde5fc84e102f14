#include "wiredate.h"

#include <QRegularExpression>

namespace service {

namespace {

const int FirstMillisecondDigits = 9;

QString withoutMarks(const QString &text)
{
    QString inner = text.trimmed();
    const auto strip = [&inner](char open, char close) {
        if (inner.size() >= 2 && inner.startsWith(QLatin1Char(open)) && inner.endsWith(QLatin1Char(close)))
            inner = inner.mid(1, inner.size() - 2).trimmed();
    };
    strip('[', ']');
    strip('\'', '\'');
    return inner;
}

WireDate moment(const QDateTime &at)
{
    return {at, at};
}

WireDate span(const QDate &first, const QDate &next)
{
    return {QDateTime(first, QTime(0, 0)), QDateTime(next.addDays(-1), QTime(23, 59, 59))};
}

std::optional<WireDate> readServiceDate(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^/Date\\((-?\\d{1,15})(?:([+-])(\\d\\d)(\\d\\d))?\\)/?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QDateTime utc = QDateTime::fromMSecsSinceEpoch(match.captured(1).toLongLong(), Qt::UTC);
    if (match.captured(2).isEmpty())
        return moment(fromMilliseconds(utc.toMSecsSinceEpoch()));
    // The client's own calendar day counts, not the day that it is here at that moment.
    const int minutes = match.capturedRef(3).toInt() * 60 + match.capturedRef(4).toInt();
    const QDateTime there = utc.addSecs((match.captured(2) == QLatin1String("-") ? -60 : 60) * minutes);
    return moment(QDateTime(there.date(), there.time()));
}

std::optional<WireDate> readDigits(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^-?\\d{4,15}$"));
    if (!form.match(text).hasMatch())
        return std::nullopt;
    if (text.size() >= FirstMillisecondDigits)
        return moment(fromMilliseconds(text.toLongLong()));
    const QDate year(text.leftRef(4).toInt(), 1, 1);
    const QDate month(text.leftRef(4).toInt(), text.midRef(4, 2).toInt(), 1);
    const QDate day(month.year(), month.month(), text.midRef(6, 2).toInt());
    if (text.size() == 4 && year.isValid())
        return span(year, year.addYears(1));
    if (text.size() == 6 && month.isValid())
        return span(month, month.addMonths(1));
    if (text.size() == 8 && day.isValid())
        return moment(QDateTime(day, QTime(0, 0)));
    return std::nullopt;
}

std::optional<WireDate> readIso(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d{4})-(\\d{1,2})(?:-(\\d{1,2})(?:[ T](\\d\\d):(\\d\\d)(?::(\\d\\d))?)?)?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const auto part = [&match](int index) { return match.capturedRef(index).toInt(); };
    const QDate month(part(1), part(2), 1);
    if (month.isValid() && match.captured(3).isEmpty())
        return span(month, month.addMonths(1));
    const QDate day(part(1), part(2), part(3));
    const QTime time(part(4), part(5), part(6));
    if (!day.isValid() || !time.isValid())
        return std::nullopt;
    return moment(QDateTime(day, time));
}

/// The number of \a count digits at \a at; -1 where one is no digit.
int digitsAt(const char *text, int at, int count)
{
    int number = 0;
    for (int i = at; i < at + count; ++i) {
        const int digit = text[i] - '0';
        if (digit < 0 || digit > 9)
            return -1;
        number = number * 10 + digit;
    }
    return number;
}

/// The two forms that a database holds, without a regular expression: this runs for every cell.
std::optional<QDateTime> readStored(const char *text, int size)
{
    const bool hasTime = size == 19;
    if ((size != 10 && !hasTime) || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const QDate date(digitsAt(text, 0, 4), digitsAt(text, 5, 2), digitsAt(text, 8, 2));
    const QTime time =
        hasTime ? QTime(digitsAt(text, 11, 2), digitsAt(text, 14, 2), digitsAt(text, 17, 2)) : QTime(0, 0);
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time);
}

} // namespace

std::optional<WireDate> readWireDate(const QString &text)
{
    const QString inner = withoutMarks(text);
    if (const auto date = readServiceDate(inner))
        return date;
    if (const auto date = readDigits(inner))
        return date;
    return readIso(inner);
}

bool isMarkedDate(const QString &text)
{
    return text.startsWith(QLatin1String("/Date(")) ||
           (text.startsWith(QLatin1Char('[')) && text.endsWith(QLatin1Char(']')));
}

QString isoText(const QDateTime &moment)
{
    const bool midnight = moment.time() == QTime(0, 0);
    return moment.toString(midnight ? QStringLiteral("yyyy-MM-dd") : QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QDateTime fromMilliseconds(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds);
}

std::optional<qint64> IsoClock::milliseconds(const char *text, int size)
{
    if (m_text != QByteArray::fromRawData(text, size)) {
        const auto moment = readStored(text, size);
        m_text = QByteArray(text, size);
        m_answer = moment ? std::optional<qint64>(moment->toMSecsSinceEpoch()) : std::nullopt;
    }
    return m_answer;
}

} // namespace service
