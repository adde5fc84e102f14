#pragma once

#include "documentplace.h"
#include "viewdocument.h"

namespace service {

/// Reads the tree of bands and columns; faults go to \a place.
QVector<BandNode> readBands(const QJsonArray &array, const DocumentPlace &place);

/// Reads the settings of columns that no band shows, by field name.
QVector<BandNode> readFields(const QJsonObject &object, const DocumentPlace &place);

} // namespace service
