#pragma once

#include "tfsheet.h"

#include <xlsxformat.h>

namespace QXlsx {
class Document;
class Worksheet;
} // namespace QXlsx

/// The current sheet of a document of the workbook library, which keeps all of it in memory.
class TFDocumentSheet : public TFSheet
{
public:
    explicit TFDocumentSheet(QXlsx::Document &document);
    /// With another format than the usual one for the header.
    TFDocumentSheet(QXlsx::Document &document, const QXlsx::Format &header);

    void writeText(int row, int col, const QString &text, Style style) override;
    void writeNumber(int row, int col, double value, Style style) override;
    void writeBool(int row, int col, bool value, Style style) override;
    void writeBlank(int row, int col, Style style) override;
    void merge(int row, int first, int last) override;
    void beginData(int firstRow, int rows, int columns, double width) override;

private:
    QXlsx::Worksheet *m_sheet;
    QXlsx::Format m_formats[StyleCount];
};
