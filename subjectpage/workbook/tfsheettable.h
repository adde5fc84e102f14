#pragma once

#include "tfsheet.h"

#include <QList>
#include <QVariant>

#include <functional>

class TFTreeStruct;

/// A table on a sheet: the one place that decides which cell holds what, and how it looks.
namespace TFSheetTable {

using Rows = QList<QList<QVariant>>;
/// Told now and then how many rows are written; false ends the writing.
using KeepGoing = std::function<bool(int rows)>;

/// Writes the bands and columns below the root \a header, the tallest ones from row 1 on.
void writeHeader(TFSheet &sheet, TFTreeStruct *header);

/// Writes the caption of \a node, merged over the columns of its leaves, and its subtree below it; nothing of
/// a hidden one.
void writeNode(TFSheet &sheet, TFTreeStruct *node, int row, int col);

/// Writes \a rows from row \c header->depth() on, without the values of hidden leaves. What a sheet can't
/// hold is left out with a warning. False when \a keepGoing said so, or the sheet is no good any more.
bool writeRows(TFSheet &sheet, TFTreeStruct *header, const Rows &rows, const KeepGoing &keepGoing);

} // namespace TFSheetTable
