#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace service {

/// A span of time as a client names it: from the first to the last second that the text stands for.
struct WireDate
{
    QDateTime first;
    QDateTime last;
    bool isSpan() const { return first != last; }
};

/// Reads a date text: `yyyy-MM-dd[ hh:mm[:ss]]`, `yyyy-MM`, `yyyy`, `yyyyMMdd`, `yyyyMM`, milliseconds since
/// the epoch (nine digits and more), and `/Date(1596124800000+0800)` with or without its closing "/". Any of
/// them may stand in brackets or single quotes. A day alone is its midnight; a month or year is a span.
std::optional<WireDate> readWireDate(const QString &text);

/// Whether \a text is marked as a date by brackets or by "/Date(".
bool isMarkedDate(const QString &text);

/// The database's text of \a moment: `yyyy-MM-dd` at midnight, else `yyyy-MM-dd hh:mm:ss`.
QString isoText(const QDateTime &moment);

/// The moment of epoch milliseconds in the service's own zone.
QDateTime fromMilliseconds(qint64 milliseconds);

/// Epoch milliseconds of ISO texts in the service's zone. Remembers its last answer: dates repeat from row to
/// row.
class IsoClock
{
public:
    /// Milliseconds, or nothing when \a text is no date.
    std::optional<qint64> milliseconds(const char *text, int size);

private:
    QByteArray m_text;
    std::optional<qint64> m_answer;
};

} // namespace service
