#include "tfjsp.h"

#include "records/tfcategories.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace {
const QString StateKey = QStringLiteral("state");
const QString MessageKey = QStringLiteral("msg");
const QString ExtendKey = QStringLiteral("extend");
const QString DataKey = QStringLiteral("data");

bool readEnvelope(const QJsonDocument &document, const QJsonParseError &error, NtResponse &out)
{
    if (error.error != QJsonParseError::NoError) {
        qCWarning(lcNet) << "respone is not json obj:" << error.errorString();
        return false;
    }
    const QJsonObject envelope = document.object();
    if (!TFJSP::hasAllKeys({StateKey, MessageKey, ExtendKey, DataKey}, envelope))
        return false;
    out.state = envelope.value(StateKey).toInt();
    out.msg = envelope.value(MessageKey).toString();
    out.extend = envelope.value(ExtendKey);
    out.data = envelope.value(DataKey);
    return true;
}

template <typename Text> bool readNavTree(const Text &json, QJsonArray &out)
{
    NtResponse response;
    if (!TFJSP::parseResponse(json, response))
        return false;
    out = response.data.toArray();
    if (out.isEmpty()) {
        qCDebug(lcNet) << "parseSubjectTree:array is empty";
        return false;
    }
    return true;
}
} // namespace

bool TFJSP::parseResponse(const QString &json, NtResponse &out)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8(), &error);
    return readEnvelope(document, error, out);
}

bool TFJSP::parseResponse(const QByteArray &json, NtResponse &out)
{
    // The decoder ends a text at a zero byte and replaces what is no UTF-8; such replies take the long way.
    QJsonParseError error;
    const bool clean = !json.contains('\0');
    const QJsonDocument document = clean ? QJsonDocument::fromJson(json, &error) : QJsonDocument();
    if (!clean || error.error != QJsonParseError::NoError)
        return parseResponse(QString::fromUtf8(json), out);
    return readEnvelope(document, error, out);
}

bool TFJSP::hasAllKeys(const QStringList &keys, const QJsonObject &object)
{
    for (const QString &key : keys) {
        if (!object.contains(key)) {
            qCDebug(lcNet) << "can't found the key:" << key;
            return false;
        }
    }
    return true;
}

bool TFJSP::parseNavTree(const QString &json, QJsonArray &out)
{
    return readNavTree(json, out);
}

bool TFJSP::parseNavTree(const QByteArray &json, QJsonArray &out)
{
    return readNavTree(json, out);
}
