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

/// False where the parser might take the bytes otherwise than their text: a zero byte ends a text, and a
/// backslash before a byte outside of ASCII hides that this is no UTF-8.
bool readsLikeItsText(const QByteArray &json)
{
    if (json.contains('\0'))
        return false;
    int at = json.indexOf('\\');
    while (at >= 0 && at + 1 < json.size()) {
        if (uchar(json.at(at + 1)) >= 0x80)
            return false;
        at = json.indexOf('\\', at + 2);
    }
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
    if (readsLikeItsText(json)) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(json, &error);
        if (error.error == QJsonParseError::NoError)
            return readEnvelope(document, error, out);
    }
    return parseResponse(QString::fromUtf8(json), out);
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
