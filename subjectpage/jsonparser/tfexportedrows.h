#pragma once

#include <QByteArray>
#include <QList>
#include <QVariant>

#include <atomic>

class TFTreeStruct;

/// The rows of an export, as plain values.
namespace TFExportedRows {

using Rows = QList<QList<QVariant>>;

/// What TFJsonParser::parseData() for the export does. On any thread, as \a header is of it alone meanwhile;
/// false soon after \a isGivenUp has become true.
bool read(const QByteArray &json, Rows *out, TFTreeStruct *header, const std::atomic_bool &isGivenUp);

} // namespace TFExportedRows
