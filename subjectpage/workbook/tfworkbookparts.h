#pragma once

#include <QByteArray>
#include <QList>

/// The parts of a workbook of one sheet, but for the sheet itself.
namespace TFWorkbookParts {

constexpr char SheetPart[] = "xl/worksheets/sheet1.xml";
constexpr char SheetNamespace[] = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
constexpr char XmlHead[] = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
                           "\n";

struct Part
{
    const char *name;
    QByteArray text;
};

/// In the order in which they should stand, before the sheet. The styles of TFSheet have the numbers that
/// styleNumber() gives.
QList<Part> fixedParts();

/// By which a cell names its style; 0 is the style of cells that name none.
constexpr int styleNumber(int style)
{
    return style + 1;
}

} // namespace TFWorkbookParts
