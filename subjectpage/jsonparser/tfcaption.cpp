#include "tfcaption.h"

#include <QStringList>

// Written out by hand, since the patterns that say the same take quadratic time on a long text of braces.

bool TFCaption::hasExpression(const QString &caption)
{
    const int open = caption.indexOf(QLatin1Char('{'));
    return open >= 0 && caption.indexOf(QLatin1Char('}'), open) >= 0;
}

QString TFCaption::expression(const QString &caption)
{
    const int open = caption.indexOf(QLatin1Char('{'));
    const int close = caption.lastIndexOf(QLatin1Char('}'));
    return caption.mid(open + 1, close - open - 1);
}

QString TFCaption::replaced(const QString &caption, const QString &text)
{
    QStringList lines = caption.split(QLatin1Char('\n'));
    for (QString &line : lines) {
        const int open = line.indexOf(QLatin1Char('{'));
        const int close = line.lastIndexOf(QLatin1Char('}'));
        if (open >= 0 && close > open)
            line.replace(open, close - open + 1, text);
    }
    return lines.join(QLatin1Char('\n'));
}
