#pragma once

#include "records/tftablemodeldata.h"

#include <QVariant>

namespace TFExportValue {

/// The plain value of a cell for a workbook: a number rounded as it is shown, a trimmed text, a date as text,
/// one blank where there is no value. Ignores the unit that the user chose. The value of \a format does not
/// count.
QVariant convert(const TFTableModelData::tagCellValue &format, const QVariant &value);

} // namespace TFExportValue
