#include "tffilterlabel.h"

#include "tffilterdefaults.h"

#include <QDateTime>

namespace {
/// A default of several parts is a list: of integers for a decimal field, else of texts.
void takeAsList(FilterParam::Cntrl &cntrl, const QStringList &parts)
{
    if (cntrl.valueType.compare(QLatin1String("decimal"), Qt::CaseInsensitive) != 0) {
        cntrl.value = parts;
        cntrl.valueType = QStringLiteral("stringList");
        return;
    }
    QVariantList numbers;
    for (const QString &part : parts)
        numbers.append(part.toLongLong());
    cntrl.value = numbers;
    cntrl.valueType = QStringLiteral("intlist");
}

void takeAsDate(FilterParam::Cntrl &cntrl)
{
    const QString text = cntrl.value.toString();
    QDate date = QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
    if (!date.isValid())
        date = QDate::fromString(text, QStringLiteral("yyyy-M-d"));
    if (date.isValid())
        cntrl.value = TFFilterDefaults::serviceDateText(QDateTime(date, QTime(0, 0)));
}
} // namespace

TFFilterLabel::TFFilterLabel(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
{}

FilterParam::Cntrl TFFilterLabel::getCntrl() const
{
    FilterParam::Cntrl cntrl = described();
    cntrl.value = row().DefualtValue;
    const QStringList parts = row().DefualtValue.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (parts.size() >= 2)
        takeAsList(cntrl, parts);
    if (cntrl.valueType.toLower() == QLatin1String("datetime"))
        takeAsDate(cntrl);
    // A dynamic default stays as it is: the bar resolves it. Lists have no text and keep their elements.
    const QString text = cntrl.value.toString();
    const bool isText = cntrl.value.userType() == QMetaType::QString;
    if (isText && !TFFilterDefaults::isDynamic(text) && row().ParameterCategory == QLatin1String("1"))
        cntrl.value = TFFilterDefaults::withoutEquals(text);
    return cntrl;
}
