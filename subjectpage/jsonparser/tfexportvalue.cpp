#include "tfexportvalue.h"

#include "records/tfdecimalformat.h"

#include <QDateTime>
#include <QLocale>

namespace {
constexpr QLatin1String DecimalType("decimal");
constexpr QLatin1String StringType("string");
constexpr QLatin1String DateTimeType("datetime");
constexpr QLatin1String UnitColumn("BandedGridColumnWithUnit");
const QString DefaultDateFormat = QStringLiteral("yyyy-MM-dd");
const QString NoValue = QStringLiteral(" ");

using Cell = TFTableModelData::tagCellValue;

QVariant number(const Cell &format, const QVariant &value)
{
    bool isNumber = false;
    double number = value.toDouble(&isNumber);
    if (!isNumber)
        return value;
    if (format.columnType.compare(UnitColumn, Qt::CaseInsensitive) == 0)
        number = number * double(format.prevUnitFactor) / double(format.showUnitFactor);
    const int precision = TFDecimalFormat::precision(format.formatString);
    const QString text = QStringLiteral("%L1").arg(number, 0, 'f', precision, QLatin1Char(' '));
    static const QLocale china(QLocale::Chinese, QLocale::China);
    if (precision == 0)
        return china.toLongLong(text);
    return china.toDouble(text);
}

QString date(const Cell &format, const QVariant &value)
{
    if (value.isNull())
        return QString();
    const auto milliseconds = qint64(qBound(-9e18, value.toDouble(), 9e18));
    return QDateTime::fromMSecsSinceEpoch(milliseconds)
        .toString(format.formatString.isEmpty() ? DefaultDateFormat : format.formatString);
}
} // namespace

QVariant TFExportValue::convert(const Cell &format, const QVariant &value)
{
    if (!value.isValid())
        return NoValue;
    const QString type = format.valueType.toLower();
    if (type == DecimalType)
        return number(format, value);
    if (type.contains(StringType))
        return value.toString().trimmed();
    if (type == DateTimeType)
        return date(format, value);
    return value;
}
