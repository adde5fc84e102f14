#pragma once

#include "records/tftablemodeldata.h"

class QString;

namespace TFLinkTemplate {

/// The address for a row: each "${FIELD}" in the query of \a link gives way to the row's value of that field,
/// or to nothing where the row has none. A link without a query stays as it is.
QString fill(const QString &link, const RowData &row);

} // namespace TFLinkTemplate
