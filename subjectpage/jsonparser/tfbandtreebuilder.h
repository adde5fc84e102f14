#pragma once

#include "records/headerfieldinfo.h"

#include <QList>

#include <optional>

class TFTreeStruct;

namespace TFBandTreeBuilder {

/// Bands deeper than this are left out, with a warning.
constexpr int DeepestBand = 200;

/// Replaces the children of \a root by the tree of \a fields: one node a visible field, under the field that
/// it names as its band, in the order of the list. A field that names no field of the list, or stands in a
/// circle of bands, has no column.
///
/// Where several fields have one name, the first takes the columns of that band. (Comparing each with each
/// would hang the same nodes under all of them.) A field at the top level is a child of the root and of
/// nothing else, also where another field has an empty name or is called "0". \a groupColumn becomes the last
/// one, hidden.
void build(TFTreeStruct &root, const QList<HeaderFieldInfo> &fields,
           const std::optional<HeaderFieldInfo> &groupColumn = std::nullopt);

/// The hidden column of a grouped view.
HeaderFieldInfo groupColumn(const QString &groupFields);

} // namespace TFBandTreeBuilder
