#include "tfdocumentsheet.h"

#include <xlsxcellrange.h>
#include <xlsxdocument.h>
#include <xlsxworksheet.h>

TFDocumentSheet::TFDocumentSheet(QXlsx::Document &document)
    : m_sheet(document.currentWorksheet())
{
    for (int style = 0; style < StyleCount; ++style) {
        QXlsx::Format &format = m_formats[style];
        format.setHorizontalAlignment(QXlsx::Format::AlignHCenter);
        format.setVerticalAlignment(QXlsx::Format::AlignVCenter);
        const Look look = TFSheet::look(Style(style));
        if (look.isBold)
            format.setFontBold(true);
        if (look.numberFormat)
            format.setNumberFormat(QLatin1String(look.numberFormat));
    }
}

TFDocumentSheet::TFDocumentSheet(QXlsx::Document &document, const QXlsx::Format &header)
    : TFDocumentSheet(document)
{
    m_formats[Header] = header;
}

// By the sheet's own functions: the library's general one makes formulas and links of some texts.

void TFDocumentSheet::writeText(int row, int col, const QString &text, Style style)
{
    m_sheet->writeString(row, col, text, m_formats[style]);
}

void TFDocumentSheet::writeNumber(int row, int col, double value, Style style)
{
    m_sheet->writeNumeric(row, col, value, m_formats[style]);
}

void TFDocumentSheet::writeBool(int row, int col, bool value, Style style)
{
    m_sheet->writeBool(row, col, value, m_formats[style]);
}

void TFDocumentSheet::writeBlank(int row, int col, Style style)
{
    m_sheet->writeBlank(row, col, m_formats[style]);
}

void TFDocumentSheet::merge(int row, int first, int last)
{
    m_sheet->mergeCells(QXlsx::CellRange(row, first, row, last), m_formats[Header]);
}

void TFDocumentSheet::beginData(int, int, int columns, double width)
{
    if (columns > 0)
        m_sheet->setColumnWidth(1, columns, width);
}
