#include "tfchartdatanumbers.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace {
constexpr int FractionDigits = 4;
constexpr double FractionScale = 1e4;
/// No two decimal numbers of at most fifteen digits are the same double, so that such a number is the
/// shortest text of its double.
constexpr double LargestScaled = 1e15;
constexpr int TypicalLength = 8;

/// Appends \a scaled / FractionScale without zeros at the end.
void appendScaled(QByteArray &json, qint64 scaled)
{
    char text[24];
    char *const end = text + sizeof text;
    char *at = end;
    quint64 rest = quint64(std::llabs(scaled));
    bool isDigitSeen = false;
    for (int digit = 0; digit <= FractionDigits || rest > 0; ++digit, rest /= 10) {
        if (digit == FractionDigits) {
            if (isDigitSeen)
                *--at = '.';
            isDigitSeen = true;
        }
        isDigitSeen = isDigitSeen || rest % 10 != 0;
        if (isDigitSeen)
            *--at = char('0' + rest % 10);
    }
    if (scaled < 0)
        *--at = '-';
    json.append(at, int(end - at));
}

void appendNumber(QByteArray &json, double value)
{
    const double scaled = std::nearbyint(value * FractionScale);
    if (std::fabs(scaled) < LargestScaled && scaled / FractionScale == value) {
        appendScaled(json, qint64(scaled));
        return;
    }
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    json.append(array.constData() + 1, array.size() - 2);
}
} // namespace

void TFChartData::appendNumbers(QByteArray &json, const QList<double> &values)
{
    json.reserve(json.size() + values.size() * TypicalLength);
    json += '[';
    for (const double value : values) {
        if (!json.endsWith('['))
            json += ',';
        appendNumber(json, value);
    }
    json += ']';
}
