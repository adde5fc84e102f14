#include "celltext.h"

#include <gridcontrol/gridcolumn.h>

#include <QRegularExpression>

namespace Qtitan {

namespace {
QString oneLine(QString text)
{
    for (QChar &letter : text)
        if (letter < QLatin1Char(' ') || letter == QChar::LineSeparator ||
            letter == QChar::ParagraphSeparator)
            letter = QLatin1Char(' ');
    return text;
}

bool needsOneLine(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar letter) {
        return letter < QLatin1Char(' ') || letter == QChar::LineSeparator ||
               letter == QChar::ParagraphSeparator;
    });
}
} // namespace

QString displayText(const QVariant &value, const QLocale &locale)
{
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return locale.toString(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    case QMetaType::QString:
        break;
    default:
        return oneLine(value.toString());
    }
    const QString text = value.toString();
    return needsOneLine(text) ? oneLine(text) : text;
}

QString unitOf(const QString &caption)
{
    static const QRegularExpression unit(
        QStringLiteral("\\s*[(\uff08][^()\uff08\uff09]{1,16}[)\uff09]\\s*$"));
    return unit.match(caption).captured();
}

bool isNumber(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
        return true;
    default:
        return false;
    }
}

Qt::Alignment alignmentOfCell(const QModelIndex &index, const GridColumn &column, const QVariant &value)
{
    int alignment = index.isValid() ? index.data(Qt::TextAlignmentRole).toInt() : 0;
    if (!alignment)
        alignment = column.textAlignment();
    if (!alignment)
        alignment = isNumber(value) ? Qt::AlignRight : Qt::AlignLeft;
    return Qt::Alignment(alignment);
}

LinkText linkText(const QString &text)
{
    if (text.contains(QLatin1String("<a "), Qt::CaseInsensitive)) {
        static const QRegularExpression markup(
            QStringLiteral("<a\\s[^>]*href\\s*=\\s*(['\"])(.*?)\\1[^>]*>(.*?)</a>"),
            QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch match = markup.match(text);
        if (match.hasMatch())
            return {match.captured(3), match.captured(2)};
    }
    static const QRegularExpression address(QStringLiteral("^([a-z][a-z0-9+.-]*:|www\\.)\\S+$"),
                                            QRegularExpression::CaseInsensitiveOption);
    return {text, address.match(text).hasMatch() ? text : QString()};
}

} // namespace Qtitan
