#include "variantjson.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace {
const char TagMark = '$';
const char IntTag[] = "$int";
const char MapTag[] = "$map";
constexpr qint64 LargestExact = qint64(1) << 53;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(VariantJson)
};

QJsonValue writeWhole(const QVariant &value)
{
    const qint64 number = value.toLongLong();
    const bool isHuge = value.userType() == QMetaType::ULongLong && value.toULongLong() > quint64(INT64_MAX);
    if (!isHuge && number >= -LargestExact && number <= LargestExact)
        return double(number);
    return QJsonObject{{IntTag, value.toString()}};
}

QJsonValue writeMap(const QVariantMap &map, const QString &path, QStringList *problems)
{
    QJsonObject object;
    for (auto it = map.begin(); it != map.end(); ++it)
        object.insert(it.key(), VariantJson::write(it.value(), path + '/' + it.key(), problems));
    if (map.size() == 1 && map.firstKey().startsWith(TagMark))
        return QJsonObject{{MapTag, object}};
    return object;
}

QJsonValue writeOther(const QVariant &value, const QString &path, QStringList *problems)
{
    if (value.canConvert<QString>())
        return value.toString();
    problems->append(Texts::tr("%1: a value of type %2 cannot be kept").arg(path, value.typeName()));
    return QJsonValue::Null;
}

QVariantMap readMap(const QJsonObject &object, const QString &path, QStringList *problems)
{
    QVariantMap map;
    for (auto it = object.begin(); it != object.end(); ++it)
        map.insert(it.key(), VariantJson::read(it.value(), path + '/' + it.key(), problems));
    return map;
}

QVariant readWhole(const QJsonValue &json, const QString &path, QStringList *problems)
{
    bool isSigned = false;
    bool isUnsigned = false;
    const qint64 number = json.toString().toLongLong(&isSigned);
    const quint64 huge = json.toString().toULongLong(&isUnsigned);
    if (isSigned)
        return number;
    if (isUnsigned)
        return huge;
    problems->append(Texts::tr("%1: a whole number of 64 bits is expected as a text").arg(path));
    return {};
}

QVariant readObject(const QJsonObject &object, const QString &path, QStringList *problems)
{
    if (object.size() == 1 && object.contains(IntTag))
        return readWhole(object.value(IntTag), path, problems);
    if (object.size() == 1 && object.contains(MapTag))
        return readMap(object.value(MapTag).toObject(), path, problems);
    return readMap(object, path, problems);
}

QVariant readNumber(double number)
{
    const bool isWhole = std::abs(number) <= double(LargestExact) && std::trunc(number) == number;
    return isWhole ? QVariant(qint64(number)) : QVariant(number);
}
} // namespace

QJsonValue VariantJson::write(const QVariant &value, const QString &path, QStringList *problems)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return QJsonValue::Null;
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return writeWhole(value);
    case QMetaType::Float:
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return writeMap(value.toMap(), path, problems);
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        QJsonArray array;
        for (const QVariant &item : value.toList())
            array.append(write(item, QString("%1[%2]").arg(path).arg(array.size()), problems));
        return array;
    }
    default:
        return writeOther(value, path, problems);
    }
}

QVariant VariantJson::read(const QJsonValue &json, const QString &path, QStringList *problems)
{
    switch (json.type()) {
    case QJsonValue::Object:
        return readObject(json.toObject(), path, problems);
    case QJsonValue::Array: {
        QVariantList list;
        for (const QJsonValue &item : json.toArray())
            list.append(read(item, QString("%1[%2]").arg(path).arg(list.size()), problems));
        return list;
    }
    case QJsonValue::Double:
        return readNumber(json.toDouble());
    case QJsonValue::Bool:
        return json.toBool();
    case QJsonValue::String:
        return json.toString();
    default:
        return {};
    }
}
