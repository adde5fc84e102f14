#include "tfworkbookparts.h"

#include "tfsheet.h"

namespace {
constexpr int FirstNumberFormat = 164; ///< those below are built in

constexpr char ContentTypes[] =
    R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
    R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
    R"(<Default Extension="xml" ContentType="application/xml"/>)"
    R"(<Override PartName="/xl/workbook.xml" ContentType=")"
    R"(application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)"
    R"(<Override PartName="/xl/styles.xml" ContentType=")"
    R"(application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml"/>)"
    R"(<Override PartName="/xl/worksheets/sheet1.xml" ContentType=")"
    R"(application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/></Types>)";

constexpr char Relations[] =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
    R"(<Relationship Id="rId1" Target="xl/workbook.xml" Type=")"
    R"(http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument"/></Relationships>)";

constexpr char Workbook[] =
    R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r=")"
    R"(http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
    R"(<sheets><sheet name="Sheet1" sheetId="1" r:id="rId1"/></sheets></workbook>)";

constexpr char WorkbookRelations[] =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
    R"(<Relationship Id="rId1" Target="worksheets/sheet1.xml" Type=")"
    R"(http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet"/>)"
    R"(<Relationship Id="rId2" Target="styles.xml" Type=")"
    R"(http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles"/></Relationships>)";

constexpr char FontsToStyles[] =
    R"(<fonts count="2"><font><sz val="11"/><name val="Calibri"/></font>)"
    R"(<font><b/><sz val="11"/><name val="Calibri"/></font></fonts>)"
    R"(<fills count="2"><fill><patternFill patternType="none"/></fill>)"
    R"(<fill><patternFill patternType="gray125"/></fill></fills>)"
    R"(<borders count="1"><border><left/><right/><top/><bottom/><diagonal/></border></borders>)"
    R"(<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>)";

constexpr char CellStyles[] =
    R"(<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles></styleSheet>)";

QByteArray styles()
{
    QByteArray formats;
    QByteArray cells = R"(<xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/>)";
    int formatCount = 0;
    for (int style = 0; style < TFSheet::StyleCount; ++style) {
        const TFSheet::Look look = TFSheet::look(TFSheet::Style(style));
        const QByteArray number =
            QByteArray::number(look.numberFormat ? FirstNumberFormat + formatCount++ : 0);
        if (look.numberFormat)
            formats += "<numFmt numFmtId=\"" + number + "\" formatCode=\"" + look.numberFormat + "\"/>";
        cells +=
            "<xf numFmtId=\"" + number + "\" fontId=\"" + (look.isBold ? "1" : "0") +
            R"(" fillId="0" borderId="0" xfId="0" applyNumberFormat="1" applyFont="1" applyAlignment="1">)"
            R"(<alignment horizontal="center" vertical="center"/></xf>)";
    }
    return QByteArray("<styleSheet xmlns=\"") + TFWorkbookParts::SheetNamespace + "\"><numFmts count=\"" +
           QByteArray::number(formatCount) + "\">" + formats + "</numFmts>" + FontsToStyles +
           "<cellXfs count=\"" + QByteArray::number(TFWorkbookParts::styleNumber(TFSheet::StyleCount)) +
           "\">" + cells + "</cellXfs>" + CellStyles;
}
} // namespace

QList<TFWorkbookParts::Part> TFWorkbookParts::fixedParts()
{
    return {{"[Content_Types].xml", QByteArray(XmlHead) + ContentTypes},
            {"_rels/.rels", QByteArray(XmlHead) + Relations},
            {"xl/workbook.xml", QByteArray(XmlHead) + Workbook},
            {"xl/_rels/workbook.xml.rels", QByteArray(XmlHead) + WorkbookRelations},
            {"xl/styles.xml", QByteArray(XmlHead) + styles()}};
}
