#include "tfjsontext.h"

#include "records/tfcategories.h"

#include <QJsonDocument>
#include <QJsonValue>

#include <limits>

namespace {
template <typename Integer> Integer truncated(double number)
{
    using Limits = std::numeric_limits<Integer>;
    // The largest 64-bit integer is no double; the next one up is.
    if (number >= double(Limits::max()))
        return Limits::max();
    if (number <= double(Limits::min()))
        return Limits::min();
    return Integer(number);
}
} // namespace

QJsonDocument TFJsonText::parse(const QJsonValue &value, const char *function)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(value.toString().toUtf8(), &error);
    if (error.error == QJsonParseError::NoError)
        return document;
    qCDebug(lcConfig) << function << "Json parse error: " << error.errorString();
    return QJsonDocument();
}

qint64 TFJsonText::toInt64(const QJsonValue &value)
{
    return truncated<qint64>(value.toDouble());
}

int TFJsonText::toInt32(const QJsonValue &value)
{
    return truncated<int>(value.toDouble());
}
