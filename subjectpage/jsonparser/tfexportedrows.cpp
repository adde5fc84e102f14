#include "tfexportedrows.h"

#include "expression/expressionparse.h"
#include "mulittable/tfheaderdatastruct.h"
#include "net/tfrowsreply.h"
#include "records/tfcategories.h"
#include "tfexportvalue.h"
#include "tfrowbuilder.h"
#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
constexpr QLatin1String StateKey("state");
constexpr QLatin1String MessageKey("msg");
constexpr QLatin1String PayloadKey("data");
constexpr int GoodState = 1;

/// The payload of a reply; empty, with a debug line, for a bad one.
QJsonObject payloadOf(const QByteArray &json)
{
    if (json.isEmpty()) {
        qCDebug(lcExport) << "json is Empty";
        return {};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        qCDebug(lcExport) << "parseData"
                          << "read json file failed..." << error.errorString();
        return {};
    }
    const QJsonObject reply = document.object();
    if (reply.isEmpty())
        return {};
    if (reply.value(StateKey).toInt() != GoodState) {
        qCDebug(lcExport) << reply.value(MessageKey).toString();
        return {};
    }
    return reply.value(PayloadKey).toObject();
}

QStringList fieldsOf(const QList<TFTreeStruct *> &leaves)
{
    QStringList fields;
    for (const TFTreeStruct *leaf : leaves)
        fields.append(leaf->info().fieldName);
    return fields;
}

TFRowStore build(const TFRawRowsPtr &rows, const QList<TFTreeStruct *> &leaves)
{
    // Each cell is computed as by a parser of its own, without the cost of one.
    std::unique_ptr<ExpressionParse> parser;
    const auto freshParser = [&parser] {
        if (!parser)
            parser = std::make_unique<ExpressionParse>();
        parser->reset();
        return parser.get();
    };
    return TFRowBuilder(
               leaves, [](const QString &) { return QString(); }, freshParser)
        .build(rows);
}
} // namespace

bool TFExportedRows::read(const QByteArray &json, Rows *out, TFTreeStruct *header,
                          const std::atomic_bool &isGivenUp)
{
    QByteArray rest;
    TFRawRowsPtr raw = TFRowsReply::split(json, rest);
    const QJsonObject payload = payloadOf(raw ? rest : json);
    if (payload.isEmpty())
        return false;
    if (!raw)
        raw = TFRawRows::fromJson(payload.value(TFTableName::Data).toArray());

    const QList<TFTreeStruct *> leaves = header ? header->leaves() : QList<TFTreeStruct *>();
    for (const TFTreeStruct *leaf : leaves)
        qCDebug(lcExport) << "header: " << leaf->displayCaption() << leaf->info().columnType
                          << leaf->info().visible;
    const TFRowStore rows = build(raw, leaves);
    out->reserve(out->size() + rows.rowCount());
    for (int row = 0; row < rows.rowCount() && !isGivenUp; ++row) {
        qCDebug(lcExport) << "visible fields in head: " << fieldsOf(leaves);
        QList<QVariant> values;
        values.reserve(leaves.size());
        for (int cell = 0; cell < leaves.size(); ++cell)
            values.append(TFExportValue::convert(rows.prototype(row, cell), rows.value(row, cell)));
        out->append(values);
    }
    return !isGivenUp;
}
