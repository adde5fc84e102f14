#include "tftoolsfunc.h"

#include "records/tfcategories.h"

#include <QStringList>

namespace {

const QLatin1String typeDateTime("datetime");
const QLatin1String typeDecimal("decimal");
const QLatin1String typeString("string");
const QLatin1String typeIntList("intlist");
const QLatin1String typeStringList("stringlist");

bool isType(const QString &type, QLatin1String name)
{
    return type.compare(name, Qt::CaseInsensitive) == 0;
}

QStringList listParts(const QString &source)
{
    for (const QChar separator : {QLatin1Char(','), QLatin1Char(';')}) {
        if (source.contains(separator))
            return source.split(separator);
    }
    return {source};
}

QVariantList integers(const QString &source)
{
    QVariantList list;
    for (const QString &part : listParts(source))
        list.append(part.toLongLong());
    return list;
}

} // namespace

QVariant TFToolsFunc::valueTrans(const QString &source, const QString &type)
{
    if (isType(type, typeDateTime))
        return QString(QLatin1Char('[') + source + QLatin1Char(']'));
    if (isType(type, typeDecimal))
        return source.toLongLong();
    if (isType(type, typeString))
        return source;
    if (isType(type, typeIntList))
        return integers(source);

    qCDebug(lcFilter).nospace().noquote() << "value type : " << type << " source : " << source;
    return source;
}

QVariant TFToolsFunc::valueTrans(const QVariant &source, const QString &type)
{
    qCDebug(lcFilter).nospace().noquote() << "sourceValue:" << source << " valueType:" << type;
    if (isType(type, typeIntList) || isType(type, typeStringList))
        return source;
    return valueTrans(source.toString(), type);
}
