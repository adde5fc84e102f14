#include "documentplace.h"

#include <cmath>

namespace service {

namespace {

QString typeText(MemberType type)
{
    switch (type) {
    case MemberType::Text:
        return QStringLiteral("a text");
    case MemberType::Whole:
        return QStringLiteral("a whole number");
    case MemberType::Number:
        return QStringLiteral("a number");
    case MemberType::Flag:
        return QStringLiteral("true or false");
    case MemberType::Object:
        return QStringLiteral("an object");
    case MemberType::Array:
        return QStringLiteral("an array");
    case MemberType::Any:
        break;
    }
    return QStringLiteral("any value");
}

QString foundText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return QLatin1Char('"') + value.toString().left(40) + QLatin1Char('"');
    case QJsonValue::Double:
        return QString::number(value.toDouble());
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Array:
        return QStringLiteral("an array");
    default:
        return QStringLiteral("null");
    }
}

bool isOfType(const QJsonValue &value, MemberType type)
{
    switch (type) {
    case MemberType::Text:
        return value.isString();
    case MemberType::Whole:
        return value.isDouble() && std::floor(value.toDouble()) == value.toDouble();
    case MemberType::Number:
        return value.isDouble();
    case MemberType::Flag:
        return value.isBool();
    case MemberType::Object:
        return value.isObject();
    case MemberType::Array:
        return value.isArray();
    case MemberType::Any:
        break;
    }
    return true;
}

const MemberRule *ruleFor(const QString &key, const MemberRules &rules)
{
    for (const MemberRule &rule : rules) {
        if (key == QLatin1String(rule.key))
            return &rule;
    }
    return nullptr;
}

QString keyListing(const MemberRules &rules)
{
    QStringList keys;
    for (const MemberRule &rule : rules)
        keys << QLatin1String(rule.key);
    return keys.join(QStringLiteral(", "));
}

} // namespace

DocumentPlace DocumentPlace::member(const QString &key) const
{
    DocumentPlace place = *this;
    place.m_path += (m_path.isEmpty() ? QString() : QStringLiteral(".")) + key;
    return place;
}

DocumentPlace DocumentPlace::element(int index) const
{
    DocumentPlace place = *this;
    place.m_path += QStringLiteral("[%1]").arg(index);
    return place;
}

void DocumentPlace::fault(const QString &text) const
{
    *m_faults << m_file + (m_path.isEmpty() ? QString() : QStringLiteral(" / ") + m_path) +
                     QStringLiteral(": ") + text;
}

void DocumentPlace::wrongType(const QString &expected, const QJsonValue &found) const
{
    fault(QStringLiteral("expected %1, found %2").arg(expected, foundText(found)));
}

bool isComment(const QString &key)
{
    return key.startsWith(QLatin1String("//"));
}

QJsonObject checkedObject(const QJsonObject &object, const MemberRules &rules, const DocumentPlace &place)
{
    QJsonObject result;
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (isComment(it.key()))
            continue;
        const MemberRule *rule = ruleFor(it.key(), rules);
        if (!rule)
            place.member(it.key()).fault(QStringLiteral("unknown key; known are %1").arg(keyListing(rules)));
        else if (!isOfType(it.value(), rule->type))
            place.member(it.key()).wrongType(typeText(rule->type), it.value());
        else
            result.insert(it.key(), it.value());
    }
    for (const MemberRule &rule : rules) {
        const QString key = QLatin1String(rule.key);
        if (rule.required && !object.contains(key))
            place.member(key).fault(QStringLiteral("%1 is required").arg(typeText(rule.type)));
        if (!object.contains(key) && !rule.fallback.isUndefined())
            result.insert(key, rule.fallback);
    }
    return result;
}

QJsonObject checkedObject(const QJsonValue &value, const MemberRules &rules, const DocumentPlace &place)
{
    if (!value.isObject()) {
        place.wrongType(typeText(MemberType::Object), value);
        return {};
    }
    return checkedObject(value.toObject(), rules, place);
}

} // namespace service
