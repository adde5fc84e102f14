#include "tfstreamsheet.h"

#include "tfworkbookparts.h"

#include <charconv>
#include <utility>

namespace {
constexpr int FlushSize = 1 << 16;
constexpr int LongestNumber = 32;
/// Bytes of a cell at most, as a rule; a sheet of more than 4 GB is to be marked so.
constexpr qint64 LargeCell = 256;
constexpr qint64 LargeSheet = qint64(1) << 32;

void appendEscaped(QByteArray &out, const QByteArray &text)
{
    for (const char c : text) {
        if (c == '&')
            out += "&amp;";
        else if (c == '<')
            out += "&lt;";
        else if (c == '>')
            out += "&gt;";
        else
            out += c;
    }
}

/// Whether readers would drop something at an end of the text.
bool hasSpaceAtAnEnd(const QString &text)
{
    return !text.isEmpty() && (text.at(0).isSpace() || text.at(text.size() - 1).isSpace());
}
} // namespace

TFStreamSheet::TFStreamSheet(QIODevice &device)
    : m_zip(device)
{
    for (const TFWorkbookParts::Part &part : TFWorkbookParts::fixedParts()) {
        m_zip.beginPart(part.name);
        m_zip.write(part.text);
    }
}

void TFStreamSheet::writeText(int row, int col, const QString &text, Style style)
{
    m_content = hasSpaceAtAnEnd(text) ? "<is><t xml:space=\"preserve\">" : "<is><t>";
    appendEscaped(m_content, text.toUtf8());
    m_content += "</t></is>";
    writeCell(row, col, style, "inlineStr", m_content);
}

void TFStreamSheet::writeNumber(int row, int col, double value, Style style)
{
    char text[LongestNumber];
    const char *end = std::to_chars(text, text + LongestNumber, value).ptr;
    m_content = "<v>";
    m_content.append(text, int(end - text)).append("</v>");
    writeCell(row, col, style, "n", m_content);
}

void TFStreamSheet::writeBool(int row, int col, bool value, Style style)
{
    writeCell(row, col, style, "b", value ? "<v>1</v>" : "<v>0</v>");
}

void TFStreamSheet::writeBlank(int row, int col, Style style)
{
    writeCell(row, col, style, "n", QByteArray());
}

void TFStreamSheet::merge(int row, int first, int last)
{
    for (int col = first + 1; col <= last; ++col)
        writeBlank(row, col, Header);
    m_merges.append(cellName(row, first) + ':' + cellName(row, last));
}

void TFStreamSheet::writeCell(int row, int col, Style style, const char *type, const QByteArray &content)
{
    const bool isNewRow = row != m_row;
    if (isNewRow) {
        m_row = row;
        m_rowName = QByteArray::number(row);
    }
    if (!m_isInData) {
        QByteArray cell;
        appendCell(cell, col, style, type, content);
        m_header[row][col] = cell;
        return;
    }
    if (isNewRow)
        beginRow();
    appendCell(m_out, col, style, type, content);
    if (m_out.size() > FlushSize)
        flush();
}

void TFStreamSheet::appendCell(QByteArray &out, int col, Style style, const char *type,
                               const QByteArray &content)
{
    while (int(m_columnNames.size()) < col)
        m_columnNames.push_back(columnName(int(m_columnNames.size()) + 1).toLatin1());
    out.append("<c r=\"").append(m_columnNames[size_t(col) - 1]).append(m_rowName);
    out.append("\" s=\"").append(char('0' + TFWorkbookParts::styleNumber(style)));
    out.append("\" t=\"").append(type);
    if (content.isEmpty())
        out.append("\"/>");
    else
        out.append("\">").append(content).append("</c>");
}

void TFStreamSheet::beginRow()
{
    endRow();
    m_isInRow = true;
    m_out.append("<row r=\"").append(m_rowName).append("\">");
}

void TFStreamSheet::endRow()
{
    if (std::exchange(m_isInRow, false))
        m_out += "</row>";
}

void TFStreamSheet::beginData(int firstRow, int rows, int columns, double width)
{
    m_zip.beginPart(TFWorkbookParts::SheetPart, LargeCell * rows * columns > LargeSheet);
    const int lastRow = rows > 0 ? firstRow + rows - 1 : m_header.empty() ? 1 : m_header.rbegin()->first;
    m_out += TFWorkbookParts::XmlHead;
    m_out.append("<worksheet xmlns=\"").append(TFWorkbookParts::SheetNamespace);
    m_out.append("\"><dimension ref=\"A1:");
    m_out.append(cellName(lastRow, qMax(1, qMax(columns, lastHeaderColumn()))).toLatin1()).append("\"/>");
    if (columns > 0)
        m_out += "<cols><col min=\"1\" max=\"" + QByteArray::number(columns) + "\" width=\"" +
                 QByteArray::number(width) + "\" customWidth=\"1\"/></cols>";
    m_out += "<sheetData>";
    appendHeader();
    m_isInData = true;
    m_row = 0;
}

int TFStreamSheet::lastHeaderColumn() const
{
    int last = 0;
    for (const auto &[row, cells] : m_header)
        last = qMax(last, cells.rbegin()->first);
    return last;
}

void TFStreamSheet::appendHeader()
{
    for (const auto &[row, cells] : m_header) {
        m_rowName = QByteArray::number(row);
        beginRow();
        for (const auto &[col, cell] : cells)
            m_out += cell;
        endRow();
    }
    m_header.clear();
}

void TFStreamSheet::appendMerges()
{
    if (m_merges.isEmpty())
        return;
    m_out += "<mergeCells count=\"" + QByteArray::number(m_merges.size()) + "\">";
    for (const QString &range : qAsConst(m_merges))
        m_out += "<mergeCell ref=\"" + range.toLatin1() + "\"/>";
    m_out += "</mergeCells>";
}

void TFStreamSheet::flush()
{
    m_zip.write(m_out);
    m_out.resize(0); // keeps its room
}

bool TFStreamSheet::finish()
{
    if (!m_isInData)
        beginData(1, 0, 0, 0);
    endRow();
    m_out += "</sheetData>";
    appendMerges();
    m_out += "</worksheet>";
    flush();
    m_zip.close();
    return m_zip.isGood();
}
