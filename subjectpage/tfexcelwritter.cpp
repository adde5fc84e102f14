#include "tfexcelwritter.h"

#include "mulittable/tfheaderdatastruct.h"
#include "records/tfcategories.h"

#include <QSet>

#include <xlsxcellrange.h>
#include <xlsxdocument.h>
#include <xlsxformat.h>
#include <xlsxworksheet.h>

#include <algorithm>
#include <iterator>

namespace {
constexpr int LetterCount = 26;
constexpr int FirstColumn = 1;
constexpr double ColumnWidth = 25.0;
constexpr int MaxSheetRows = 1048576;
constexpr int RowsPerReport = 256;

const QLatin1String DoubleFormat("#,##0.00######;-#,##0.00######");
const QLatin1String IntegerFormat("#,##0;-#,##0");
const QLatin1String DateFormat("yyyy-MM-dd");

QXlsx::Format centred()
{
    QXlsx::Format format;
    format.setHorizontalAlignment(QXlsx::Format::AlignHCenter);
    format.setVerticalAlignment(QXlsx::Format::AlignVCenter);
    return format;
}

QXlsx::Format centred(QLatin1String numberFormat)
{
    QXlsx::Format format = centred();
    format.setNumberFormat(numberFormat);
    return format;
}

int leafCount(TFTreeStruct *node)
{
    return qMax(1, node->leaves().size());
}

/// Whether a sheet, which is XML, can hold the character. Halves of a pair are taken as good.
bool isAllowed(QChar c)
{
    const ushort code = c.unicode();
    return code >= 0x20 ? code < 0xfffe : code == '\t' || code == '\n' || code == '\r';
}

QString sheetText(const QString &text)
{
    if (std::all_of(text.cbegin(), text.cend(), isAllowed))
        return text;
    QString allowed;
    std::copy_if(text.cbegin(), text.cend(), std::back_inserter(allowed), isAllowed);
    return allowed;
}

bool isPlain(QChar c)
{
    return isAllowed(c) && c != QLatin1Char('\r') && c != QLatin1Char('\\');
}

QString cleaned(const QString &value)
{
    if (std::all_of(value.cbegin(), value.cend(), isPlain))
        return value;
    QString text = sheetText(value);
    text.remove(QLatin1String("\r\n"));
    text.remove(QLatin1String("\r\r"));
    text.remove(QLatin1String("\\u"));
    return text;
}

/// A text is never read as a formula.
void writeText(QXlsx::Document &doc, int row, int col, const QString &text, const QXlsx::Format &format)
{
    if (text.startsWith(QLatin1Char('=')))
        doc.currentWorksheet()->writeString(row, col, text, format);
    else
        doc.write(row, col, text, format);
}

/// The columns that any row fills, all of one width.
void setColumnWidths(QXlsx::Document &doc, const QList<QList<QVariant>> &rows, int hiddenCount)
{
    int cells = 0;
    for (const QList<QVariant> &row : rows)
        cells = qMax(cells, row.size());
    if (cells > hiddenCount)
        doc.setColumnWidth(FirstColumn, cells - hiddenCount, ColumnWidth);
}

/// Writes values one after the other. The formats are made once and shared by all cells.
class RowWriter
{
public:
    RowWriter(QXlsx::Document &doc, const QSet<int> &hiddenIndexes)
        : m_doc(doc)
        , m_hiddenIndexes(hiddenIndexes)
    {}

    void write(int row, const QList<QVariant> &values)
    {
        int col = 0;
        for (int i = 0; i < values.size(); ++i) {
            if (!m_hiddenIndexes.contains(i))
                writeValue(row, ++col, values.at(i));
        }
    }

private:
    void writeValue(int row, int col, const QVariant &value)
    {
        switch (value.userType()) {
        case QMetaType::QString:
            writeText(m_doc, row, col, cleaned(value.toString()), *m_current);
            return;
        case QMetaType::Double:
            m_current = &m_double;
            break;
        case QMetaType::Int:
            m_current = &m_integer;
            break;
        case QMetaType::QDate:
        case QMetaType::QDateTime:
            m_current = &m_date;
            break;
        default:
            break;
        }
        m_doc.write(row, col, value, *m_current);
    }

    QXlsx::Document &m_doc;
    const QSet<int> m_hiddenIndexes;
    const QXlsx::Format m_plain = centred();
    const QXlsx::Format m_double = centred(DoubleFormat);
    const QXlsx::Format m_integer = centred(IntegerFormat);
    const QXlsx::Format m_date = centred(DateFormat);
    const QXlsx::Format *m_current = &m_plain;
};
} // namespace

bool TFExcelWritter::writeHeader(QXlsx::Document &doc, TFTreeStruct *header)
{
    QXlsx::Format format = centred();
    format.setFontBold(true);
    const int depth = header->depth();
    int col = FirstColumn;
    const QList<TFTreeStruct *> nodes = header->children();
    for (TFTreeStruct *node : nodes) {
        writeCellItem(node, doc, depth - node->depth(), col, format);
        col += leafCount(node);
    }
    return true;
}

void TFExcelWritter::writeCellItem(TFTreeStruct *node, QXlsx::Document &doc, int row, int col,
                                   const QXlsx::Format &format)
{
    const int depth = node->depth();
    qCDebug(lcExport) << "row:" << row << " col:" << col << " thisDepth:" << depth
                      << " caption:" << node->displayCaption() << " visible: " << node->info().visible;
    if (!node->info().visible)
        return;
    writeText(doc, row, col, sheetText(node->displayCaption()), format);
    if (!node->hasChildren())
        return;

    const QString range =
        QStringLiteral("%1:%2").arg(cellName(row, col), cellName(row, col + node->leaves().size() - 1));
    doc.mergeCells(QXlsx::CellRange(range), format);
    const QList<TFTreeStruct *> children = node->children();
    for (TFTreeStruct *child : children) {
        writeCellItem(child, doc, row + depth - child->depth(), col, format);
        col += leafCount(child);
    }
}

bool TFExcelWritter::writeData(QXlsx::Document &doc, TFTreeStruct *header, const QList<QList<QVariant>> &rows,
                               const KeepGoing &keepGoing)
{
    const QList<int> hidden = header->hiddenLeafIndexes();
    const int firstRow = header->depth();
    const int count = qMin(rows.size(), MaxSheetRows - firstRow + 1);
    if (count < rows.size())
        qCWarning(lcExport) << "a sheet holds" << MaxSheetRows << "rows, left out:" << rows.size() - count;

    setColumnWidths(doc, rows, hidden.size());
    RowWriter writer(doc, QSet<int>(hidden.cbegin(), hidden.cend()));
    for (int r = 0; r < count; ++r) {
        if (keepGoing && r % RowsPerReport == 0 && !keepGoing(r))
            return false;
        writer.write(firstRow + r, rows.at(r));
    }
    return true;
}

QString TFExcelWritter::cellName(int row, int col)
{
    QString letters;
    for (int rest = col; rest > 0; rest = (rest - 1) / LetterCount)
        letters.prepend(QChar('A' + (rest - 1) % LetterCount));
    return QStringLiteral("%1%2").arg(letters).arg(row);
}
