#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QString>

#include <array>

class QByteArray;
class QJsonObject;
class QStringList;

/// The envelope of a reply.
struct NtResponse
{
    int spare = 0;                     ///< not filled from a reply
    std::array<QString, 4> spareTexts; ///< not filled from a reply
    int state = 0;                     ///< the service's status; 0 when it is not an integer
    QString msg;
    QJsonValue extend;
    QJsonValue data; ///< the payload
};

/// Companion record that callers of the envelope parser hold next to a response; it concerns no envelope.
struct NtResponseTables
{
    NtResponse *header = nullptr;
    std::array<QJsonArray, 11> tables;
};

/// Checks the envelope of a reply and hands the payload on. Free of state.
namespace TFJSP {

/// True for every well-formed envelope, whatever its state says: an object with the keys "state", "msg",
/// "extend" and "data". On false, \a out is as it was. A text that is no JSON gives a warning.
bool parseResponse(const QString &json, NtResponse &out);

/// The same result as for QString::fromUtf8(\a json), without the way through UTF-16.
bool parseResponse(const QByteArray &json, NtResponse &out);

/// Logs the first key that \a object lacks. An empty list gives true.
bool hasAllKeys(const QStringList &keys, const QJsonObject &object);

/// Rows of a navigation reply; false for a bad envelope and for no rows.
bool parseNavTree(const QString &json, QJsonArray &out);
bool parseNavTree(const QByteArray &json, QJsonArray &out);

} // namespace TFJSP
