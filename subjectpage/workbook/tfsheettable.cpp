#include "tfsheettable.h"

#include "mulittable/tfheaderdatastruct.h"
#include "records/tfcategories.h"
#include "tfsheetvalue.h"

#include <QSet>

#include <cmath>

namespace {
constexpr int FirstColumn = 1;
constexpr double ColumnWidth = 25.0;
constexpr int RowsPerReport = 256;
constexpr double MillisecondsOfADay = 86400000.0;

int leafCount(TFTreeStruct *node)
{
    return qMax(1, node->leaves().size());
}

/// At most \a room of \a count; says so where that leaves out any.
int fitting(int count, int room, int most, const char *what)
{
    if (count > room)
        qCWarning(lcExport) << "a sheet holds" << most << what << "left out:" << count - room;
    return qMin(count, room);
}

/// Writes values one after the other. Keeps the number format of a value in force for those after it that
/// have none of their own.
class ValueWriter
{
public:
    ValueWriter(TFSheet &sheet, const QList<int> &hidden)
        : m_sheet(sheet)
        , m_hidden(hidden.cbegin(), hidden.cend())
    {}

    void writeRow(int row, const QList<QVariant> &values)
    {
        int col = 0;
        for (int i = 0; i < values.size() && col < TFSheet::MaxColumns; ++i) {
            if (!m_hidden.contains(i))
                write(row, ++col, values.at(i));
        }
    }
    int cutTexts() const { return m_cutTexts; }

private:
    void write(int row, int col, const QVariant &value)
    {
        const int type = value.userType();
        chooseStyle(type);
        if (value.isNull())
            m_sheet.writeBlank(row, col, m_style);
        else if (type == QMetaType::QString)
            writeText(row, col, value.toString());
        else
            writeOther(row, col, value, type);
    }

    void chooseStyle(int type)
    {
        if (type == QMetaType::Double)
            m_style = TFSheet::Double;
        else if (type == QMetaType::Int)
            m_style = TFSheet::Integer;
        else if (type == QMetaType::QDate || type == QMetaType::QDateTime)
            m_style = TFSheet::Date;
    }

    void writeText(int row, int col, const QString &value)
    {
        const QString text = TFSheetValue::text(value);
        m_cutTexts += text.size() < value.size() && text.size() >= TFSheet::MaxTextLength - 1;
        m_sheet.writeText(row, col, text, m_style);
    }

    void writeOther(int row, int col, const QVariant &value, int type)
    {
        switch (type) {
        case QMetaType::Double:
        case QMetaType::Float:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
            writeNumber(row, col, value.toDouble());
            return;
        case QMetaType::Bool:
            m_sheet.writeBool(row, col, value.toBool(), m_style);
            return;
        case QMetaType::QDate:
        case QMetaType::QDateTime:
            writeNumber(row, col, TFSheetValue::serial(value.toDateTime()));
            return;
        case QMetaType::QTime:
            writeNumber(row, col, value.toTime().msecsSinceStartOfDay() / MillisecondsOfADay);
            return;
        default:
            return; // a list or a map has no cell
        }
    }

    /// A sheet knows no infinity: it stands there as the screen shows it.
    void writeNumber(int row, int col, double value)
    {
        if (std::isfinite(value))
            m_sheet.writeNumber(row, col, value, m_style);
        else
            m_sheet.writeText(row, col, QString::number(value), m_style);
    }

    TFSheet &m_sheet;
    const QSet<int> m_hidden;
    TFSheet::Style m_style = TFSheet::Plain;
    int m_cutTexts = 0;
};

int widestRow(const TFSheetTable::Rows &rows)
{
    int cells = 0;
    for (const QList<QVariant> &row : rows)
        cells = qMax(cells, row.size());
    return cells;
}
} // namespace

void TFSheetTable::writeHeader(TFSheet &sheet, TFTreeStruct *header)
{
    const int depth = header->depth();
    int col = FirstColumn;
    const QList<TFTreeStruct *> nodes = header->children();
    for (TFTreeStruct *node : nodes) {
        writeNode(sheet, node, depth - node->depth(), col);
        col += leafCount(node);
    }
}

void TFSheetTable::writeNode(TFSheet &sheet, TFTreeStruct *node, int row, int col)
{
    const int depth = node->depth();
    qCDebug(lcExport) << "row:" << row << " col:" << col << " thisDepth:" << depth
                      << " caption:" << node->displayCaption() << " visible: " << node->info().visible;
    if (!node->info().visible || col > TFSheet::MaxColumns)
        return;
    sheet.writeText(row, col, TFSheetValue::caption(node->displayCaption()), TFSheet::Header);
    if (!node->hasChildren())
        return;

    const int last = qMin(col + node->leaves().size() - 1, TFSheet::MaxColumns);
    if (last > col)
        sheet.merge(row, col, last);
    const QList<TFTreeStruct *> children = node->children();
    for (TFTreeStruct *child : children) {
        writeNode(sheet, child, row + depth - child->depth(), col);
        col += leafCount(child);
    }
}

bool TFSheetTable::writeRows(TFSheet &sheet, TFTreeStruct *header, const Rows &rows,
                             const KeepGoing &keepGoing)
{
    const QList<int> hidden = header->hiddenLeafIndexes();
    const int firstRow = header->depth();
    const int count = fitting(rows.size(), TFSheet::MaxRows - firstRow + 1, TFSheet::MaxRows, "rows,");
    const int columns = fitting(qMax(0, widestRow(rows) - hidden.size()), TFSheet::MaxColumns,
                                TFSheet::MaxColumns, "columns,");

    sheet.beginData(firstRow, count, columns, ColumnWidth);
    ValueWriter writer(sheet, hidden);
    for (int r = 0; r < count; ++r) {
        if (r % RowsPerReport == 0 && (!sheet.isGood() || (keepGoing && !keepGoing(r))))
            return false;
        writer.writeRow(firstRow + r, rows.at(r));
    }
    if (writer.cutTexts() > 0)
        qCWarning(lcExport) << "a cell holds" << TFSheet::MaxTextLength
                            << "characters, texts cut:" << writer.cutTexts();
    return true;
}
