#include "datarequest.h"

#include "requestshape.h"
#include "wiredate.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace service {

namespace {

const int MaxBlocks = 10000;

const QLatin1String ViewKey("obj_vw_id");
const QLatin1String FlagKey("flag");
const QLatin1String PageKey("page");
const QLatin1String SizeKey("size");
const QLatin1String FilterKey("filter");
const QLatin1String FilterParamsKey("filterParams");
const QLatin1String OrderKey("order");
const QLatin1String BlockKey("filterBlock");

Refusal refuse(const QString &place, const QString &text)
{
    return {400, place + QStringLiteral(": ") + text};
}

Result<int> readPositive(const QJsonObject &body, QLatin1String key, int fallback, int limit)
{
    if (!body.contains(key))
        return fallback;
    const Result<qint64> number = readWhole(body, key);
    if (!number.ok())
        return number.refusal();
    if (number.value() < 1 || number.value() > limit)
        return refuse(key, QStringLiteral("expected 1 to %1, found %2").arg(limit).arg(number.value()));
    return static_cast<int>(number.value());
}

Result<std::optional<Page>> readPage(const QJsonObject &body, int maxRows)
{
    if (!body.contains(PageKey) && !body.contains(SizeKey))
        return std::optional<Page>();
    const Result<int> number = readPositive(body, PageKey, Page().number, INT_MAX);
    if (!number.ok())
        return number.refusal();
    const Result<int> size = readPositive(body, SizeKey, std::min(Page().size, maxRows), maxRows);
    if (!size.ok())
        return size.refusal();
    return std::optional<Page>(Page{number.value(), size.value()});
}

Result<QVector<OrderTerm>> readRequestOrder(const QJsonValue &value)
{
    QVector<OrderTerm> order;
    if (value.isUndefined() || value.isNull())
        return order;
    if (!value.isObject())
        return refuse(OrderKey, QStringLiteral("expected an object"));
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        const double direction = it.value().toDouble();
        if (std::fabs(direction) != 1)
            return refuse(QStringLiteral("order.") + it.key(), QStringLiteral("expected 1 or -1"));
        order << OrderTerm{it.key(), direction < 0};
    }
    return order;
}

Result<QVariantList> readBlocks(const QJsonValue &value)
{
    QVariantList codes;
    if (value.isUndefined() || value.isNull())
        return codes;
    if (!value.isArray())
        return refuse(BlockKey, QStringLiteral("expected an array of codes"));
    const QJsonArray array = value.toArray();
    if (array.size() > MaxBlocks)
        return refuse(BlockKey, QStringLiteral("more than %1 codes").arg(MaxBlocks));
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isDouble() && !array.at(i).isString())
            return refuse(QStringLiteral("filterBlock[%1]").arg(i), QStringLiteral("expected a code"));
        codes << (array.at(i).isDouble() ? boundNumber(array.at(i).toDouble()) : array.at(i).toVariant());
    }
    return codes;
}

bool isNumberKind(const QVariant &value)
{
    return value.userType() == QMetaType::LongLong || value.userType() == QMetaType::Double;
}

/// A value for a parameter, of the kind that its default has.
Result<QVariant> readParameter(const QJsonValue &value, const QVariant &standard, const QString &place)
{
    if (value.isNull())
        return QVariant(QVariant::String);
    if (value.isObject() || value.isArray())
        return refuse(place, QStringLiteral("expected a text or a number"));
    if (value.isDouble())
        return isNumberKind(standard) || !standard.isValid() || standard.isNull()
                   ? boundNumber(value.toDouble())
                   : QVariant(value.toVariant().toString());
    if (value.isBool())
        return QVariant(value.toBool() ? 1 : 0);
    const QString text = value.toString();
    if (isMarkedDate(text)) {
        if (const auto date = readWireDate(text))
            return QVariant(isoText(date->first));
        return refuse(place, QStringLiteral("\"%1\" is no date").arg(text));
    }
    if (!isNumberKind(standard))
        return QVariant(text);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber)
        return refuse(place, QStringLiteral("\"%1\" is no number").arg(text));
    return boundNumber(number);
}

Result<QVariant> readParameterList(const QJsonValue &value, const QVariantList &standard,
                                   const QString &place)
{
    QVariantList list;
    const QJsonArray array = value.isArray() ? value.toArray() : QJsonArray{value};
    if (array.size() > MaxBlocks)
        return refuse(place, QStringLiteral("more than %1 values").arg(MaxBlocks));
    for (const QJsonValue &item : array) {
        const Result<QVariant> read = readParameter(item, standard.value(0), place);
        if (!read.ok())
            return read.refusal();
        list << read.value();
    }
    return QVariant(list);
}

} // namespace

Result<QJsonObject> readBody(const QByteArray &body)
{
    const QString fault = RequestShape(body).fault();
    if (!fault.isEmpty())
        return refuse(QStringLiteral("body"), fault);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError)
        return refuse(QStringLiteral("body"),
                      QStringLiteral("byte %1: %2").arg(error.offset + 1).arg(error.errorString()));
    if (!document.isObject())
        return refuse(QStringLiteral("body"), QStringLiteral("expected an object"));
    return document.object();
}

Result<qint64> readWhole(const QJsonObject &body, const QString &key)
{
    const QJsonValue value = body.value(key);
    bool isWhole = false;
    const qint64 fromText = value.toString().toLongLong(&isWhole);
    if (isWhole)
        return fromText;
    const double number = value.toDouble();
    if (!value.isDouble() || std::floor(number) != number || std::fabs(number) > 9e15)
        return refuse(key, QStringLiteral("expected a whole number"));
    return static_cast<qint64>(number);
}

Result<QString> readFilterText(const QJsonObject &body)
{
    const QJsonValue value = body.value(FilterKey);
    if (!value.isUndefined() && !value.isNull() && !value.isString())
        return refuse(FilterKey, QStringLiteral("expected a text"));
    return value.toString();
}

Result<QJsonObject> readFilterParams(const QJsonObject &body)
{
    const QJsonValue value = body.value(FilterParamsKey);
    if (!value.isUndefined() && !value.isNull() && !value.isObject())
        return refuse(FilterParamsKey, QStringLiteral("expected an object"));
    return value.toObject();
}

Result<ViewRequest> readViewRequest(const QJsonObject &body, int maxRows)
{
    ViewRequest request;
    const Result<qint64> view = readWhole(body, ViewKey);
    if (!view.ok())
        return view.refusal();
    const Result<qint64> flag = readWhole(body, FlagKey);
    if (!flag.ok() || flag.value() < 0 || flag.value() > 2)
        return refuse(FlagKey, QStringLiteral("expected 0, 1 or 2"));
    const Result<std::optional<Page>> page = readPage(body, maxRows);
    if (!page.ok())
        return page.refusal();
    const Result<QString> filter = readFilterText(body);
    if (!filter.ok())
        return filter.refusal();
    const Result<QJsonObject> filterParams = readFilterParams(body);
    if (!filterParams.ok())
        return filterParams.refusal();
    const Result<QVector<OrderTerm>> order = readRequestOrder(body.value(OrderKey));
    if (!order.ok())
        return order.refusal();
    const Result<QVariantList> blocks = readBlocks(body.value(BlockKey));
    if (!blocks.ok())
        return blocks.refusal();
    return ViewRequest{view.value(),         static_cast<ViewPart>(flag.value()),
                       page.value(),         filter.value(),
                       filterParams.value(), order.value(),
                       blocks.value(),       body};
}

Result<QHash<QString, QVariant>> readParameters(const QHash<QString, QVariant> &defaults,
                                                const QJsonObject &body)
{
    QHash<QString, QVariant> values = defaults;
    for (auto it = values.begin(); it != values.end(); ++it) {
        const QJsonValue value = body.value(it.key());
        if (value.isUndefined())
            continue;
        const bool isList = it.value().userType() == QMetaType::QVariantList;
        const Result<QVariant> read = isList ? readParameterList(value, it.value().toList(), it.key())
                                             : readParameter(value, it.value(), it.key());
        if (!read.ok())
            return read.refusal();
        it.value() = read.value();
    }
    return values;
}

} // namespace service
