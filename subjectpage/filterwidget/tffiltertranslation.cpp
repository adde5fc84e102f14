#include "tffiltertranslation.h"

#include "records/tfancestors.h"
#include "records/tfcategories.h"
#include "tftoolsfunc.h"

#include <QVariantMap>

namespace {
const QLatin1String ProvinceKey("PROVINCE");
const QString Unchosen = QStringLiteral("未选择");

bool isList(const QString &valueType)
{
    return valueType.compare(QLatin1String("intlist"), Qt::CaseInsensitive) == 0 ||
           valueType.compare(QLatin1String("stringlist"), Qt::CaseInsensitive) == 0;
}

QStringList parts(const QString &text)
{
    return text.split(QLatin1Char(','), Qt::SkipEmptyParts);
}

/// The part of that index, or the first where there are fewer.
QString partAt(const QStringList &list, int index)
{
    return index < list.size() ? list.at(index) : list.value(0);
}
} // namespace

namespace TFFilterTranslation {

QVariant value(const QObject *bar, const QString &key, const QVariant &held, const QString &valueType)
{
    if (const QObject *frame = TFAncestors::find(bar, "TFFrameSubjectZHP")) {
        const QVariantMap global = frame->property("glFilterArgs").toMap();
        const auto found = global.constFind(key);
        if (found != global.constEnd())
            return TFToolsFunc::valueTrans(found.value().toString(), valueType);
    }
    qCDebug(lcFilter) << "sourceValue:" << held << " valueType:" << valueType;
    return isList(valueType) ? held : TFToolsFunc::valueTrans(held.toString(), valueType);
}

QList<FilterParam::Cntrl> expanded(const QObject *bar, const FilterParam::Cntrl &cntrl)
{
    if (!cntrl.multiField) {
        FilterParam::Cntrl entry = cntrl;
        entry.value = value(bar, cntrl.key, cntrl.value, cntrl.valueType);
        return {entry};
    }
    const QStringList keys = parts(cntrl.key);
    const QStringList values = parts(cntrl.value.toString());
    const QStringList operators = parts(cntrl.op);
    QList<FilterParam::Cntrl> entries;
    if (keys.isEmpty())
        return entries;
    for (int i = 0; i < values.size(); ++i) {
        FilterParam::Cntrl entry;
        entry.index = i;
        entry.key = partAt(keys, i);
        entry.op = partAt(operators, i);
        entry.valueType = cntrl.valueType;
        entry.value = value(bar, entry.key, values.at(i), cntrl.valueType);
        entries.append(entry);
    }
    return entries;
}

FilterParam::CustomFilter condition(const FilterParam::Cntrl &entry)
{
    FilterParam::CustomFilter filter;
    filter.fieldName = entry.key;
    filter.paramName = entry.key + QStringLiteral("_%1").arg(entry.index);
    filter.op = entry.op;
    if (entry.valueType.contains(QLatin1String("list"), Qt::CaseInsensitive))
        filter.values = entry.value.toList();
    else
        filter.values = {entry.value};
    if (entry.key == ProvinceKey && !filter.values.isEmpty()) {
        const QString first = filter.values.first().toString();
        if (first.isEmpty() || first == Unchosen)
            filter.values.clear();
    }
    return filter;
}

} // namespace TFFilterTranslation
