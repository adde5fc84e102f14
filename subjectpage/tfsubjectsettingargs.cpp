#include "tfsubjectsettingargs.h"

#include <QDate>
#include <QStringList>

namespace {
/// More values than fields begin again at the first field.
void insertFields(const FilterParam::Cntrl &control, QVariantMap &arguments)
{
    const QStringList keys = control.key.split(QLatin1Char(','), Qt::SkipEmptyParts);
    const QStringList values = control.value.toString().split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (keys.isEmpty())
        return;
    for (int i = 0; i < values.size(); ++i)
        arguments.insert(i < keys.size() ? keys.at(i) : keys.first(), values.at(i));
}

QString joined(const QVariantList &elements)
{
    QStringList texts;
    for (const QVariant &element : elements) {
        const bool isText = element.userType() == QMetaType::QString;
        texts.append(isText ? element.toString() : QString::number(element.toLongLong()));
    }
    return texts.join(QLatin1Char(','));
}

bool isList(const FilterParam::Cntrl &control)
{
    return control.op == QLatin1String("in") &&
           control.valueType.contains(QLatin1String("list"), Qt::CaseInsensitive);
}

/// The literal of the date at the start of \a text, or \a text where there is none.
QString dateLiteral(const QString &text, const QString &format)
{
    const QDate date = QDate::fromString(text.left(format.size()), format);
    return date.isValid() ? QStringLiteral("=date'%1'").arg(date.toString(Qt::ISODate)) : text;
}
} // namespace

bool TFSettingArguments::isPassedOver(const QString &objName)
{
    static const QStringList names = {QStringLiteral("virtualcntrl"), QStringLiteral("simplebuttongetdata"),
                                      QStringLiteral("simplebuttonsavetoexcel")};
    return objName.isEmpty() || names.contains(objName.toLower());
}

QVariantMap TFSettingArguments::read(const QList<FilterParam::Cntrl> &controls)
{
    QVariantMap arguments;
    for (const FilterParam::Cntrl &control : controls) {
        if (isPassedOver(control.objName))
            continue;
        if (control.multiField)
            insertFields(control, arguments);
        else if (isList(control))
            arguments.insert(control.key, joined(control.value.toList()));
        else
            arguments.insert(control.key, control.value);
    }
    return arguments;
}

QString TFSettingArguments::asDefault(const TFTableModelData::FilterData &row, const QVariant &argument)
{
    static const QString dayFormat = QStringLiteral("yyyy-MM-dd");
    const QString text = argument.toString();
    const auto isA = [&row](const char *word) {
        return row.ClassName.contains(QLatin1String(word), Qt::CaseInsensitive);
    };
    if (text.contains(QLatin1Char(';')))
        return text;
    if (isA("dateedit") || isA("reportdatesimple"))
        return dateLiteral(text, dayFormat);
    if (isA("yearmonthsimple"))
        return dateLiteral(text, QStringLiteral("yyyyMM"));
    if (isA("datetimeinterval") || isA("decimaltexteditinterval")) {
        const QString end = dateLiteral(text, dayFormat);
        return end + QLatin1Char(';') + end;
    }
    return text;
}
