#pragma once

#include "workbook/tfsheettable.h"

class TFTreeStruct;

namespace QXlsx {
class Document;
class Format;
} // namespace QXlsx

/// Writes a table to the current sheet of a document of the workbook library: the band header as merged
/// cells, the rows as typed cells. The plain way; an export of any size goes by TFExcelWritterJob, with the
/// same cells.
///
/// Rows and columns count from 1. The workbook library keeps tables of its own without a lock: no two threads
/// of a process may write workbooks at the same time.
class TFExcelWritter
{
public:
    using KeepGoing = TFSheetTable::KeepGoing;

    /// Writes the bands and columns below the root \a header, the tallest ones from row 1 on. A hidden node
    /// is left out with all below it; its columns stay empty. Always true.
    static bool writeHeader(QXlsx::Document &doc, TFTreeStruct *header);

    /// Writes \a rows from row \c header->depth() on. Values of hidden leaves are left out and the columns
    /// close up, so that they can stand apart from the header. The number format of a double, an int or a
    /// date stays in force for the values of other types after it, to the end of the sheet. False only when
    /// \a keepGoing said so. What a sheet can't hold is left out with a warning.
    static bool writeData(QXlsx::Document &doc, TFTreeStruct *header, const QList<QList<QVariant>> &rows,
                          const KeepGoing &keepGoing = {});

    /// Writes the caption of \a node, merged over the columns of its leaves, and its subtree below it.
    static void writeCellItem(TFTreeStruct *node, QXlsx::Document &doc, int row, int col,
                              const QXlsx::Format &format);

    /// Such as "A1" or "CZ7"; the letters go on after "CZ" as in "DA".
    static QString cellName(int row, int col);
};
