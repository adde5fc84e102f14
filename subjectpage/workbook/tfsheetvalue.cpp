#include "tfsheetvalue.h"

#include "tfsheet.h"

#include <algorithm>

namespace {
constexpr double MillisecondsOfADay = 86400000.0;
constexpr int LastDayOfFebruary1900 = 59;

bool isPlain(QChar c)
{
    return c.unicode() >= 0x20 && c.unicode() < 0xd800 && c != QLatin1Char('\\');
}

bool isAllowed(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    if (c.isLowSurrogate())
        return i > 0 && text.at(i - 1).isHighSurrogate();
    const ushort code = c.unicode();
    return code >= 0x20 ? code < 0xfffe : code == '\t' || code == '\n' || code == '\r';
}

QString allowed(const QString &text)
{
    if (std::all_of(text.cbegin(), text.cend(), isPlain))
        return text;
    QString allowed;
    for (int i = 0; i < text.size(); ++i) {
        if (isAllowed(text, i))
            allowed.append(text.at(i));
    }
    return allowed;
}

QString fitting(const QString &text)
{
    if (text.size() <= TFSheet::MaxTextLength)
        return text;
    const bool splitsPair = text.at(TFSheet::MaxTextLength).isLowSurrogate();
    return text.left(TFSheet::MaxTextLength - splitsPair);
}
} // namespace

QString TFSheetValue::caption(const QString &text)
{
    return fitting(allowed(text));
}

QString TFSheetValue::text(const QString &value)
{
    QString text = allowed(value);
    if (text.contains(QLatin1Char('\r')) || text.contains(QLatin1Char('\\'))) {
        text.remove(QLatin1String("\r\n"));
        text.remove(QLatin1String("\r\r"));
        text.remove(QLatin1String("\\u"));
    }
    return fitting(text);
}

double TFSheetValue::serial(const QDateTime &time)
{
    const QDateTime local = time.toLocalTime();
    const qint64 days = QDate(1899, 12, 31).daysTo(local.date());
    return days + (days > LastDayOfFebruary1900) + local.time().msecsSinceStartOfDay() / MillisecondsOfADay;
}
