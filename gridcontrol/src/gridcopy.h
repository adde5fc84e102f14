#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QMimeData;
QT_END_NAMESPACE

namespace Qtitan {

class GridArea;

/// The selected cells as tab-separated text and as an HTML table; null if none is selected. Lines without a
/// selected cell and columns without one are left out, group rows too. The caller owns the result.
QMimeData *copiedSelection(const GridArea &area, bool withHeader);

} // namespace Qtitan
