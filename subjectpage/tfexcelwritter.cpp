#include "tfexcelwritter.h"

#include "workbook/tfdocumentsheet.h"

bool TFExcelWritter::writeHeader(QXlsx::Document &doc, TFTreeStruct *header)
{
    TFDocumentSheet sheet(doc);
    TFSheetTable::writeHeader(sheet, header);
    return true;
}

void TFExcelWritter::writeCellItem(TFTreeStruct *node, QXlsx::Document &doc, int row, int col,
                                   const QXlsx::Format &format)
{
    TFDocumentSheet sheet(doc, format);
    TFSheetTable::writeNode(sheet, node, row, col);
}

bool TFExcelWritter::writeData(QXlsx::Document &doc, TFTreeStruct *header, const QList<QList<QVariant>> &rows,
                               const KeepGoing &keepGoing)
{
    TFDocumentSheet sheet(doc);
    return TFSheetTable::writeRows(sheet, header, rows, keepGoing);
}

QString TFExcelWritter::cellName(int row, int col)
{
    return TFSheet::cellName(row, col);
}
