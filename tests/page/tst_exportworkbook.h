#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <xlsxcell.h>
#include <xlsxcellrange.h>
#include <xlsxdocument.h>
#include <xlsxworksheet.h>

/// The sheet of a workbook as the workbook library reads it, whoever wrote it.
class ExportedWorkbook
{
public:
    /// \a place: a path or a device.
    template <typename Place>
    explicit ExportedWorkbook(const Place &place)
        : m_document(std::make_unique<QXlsx::Document>(place))
    {
        readSheet();
    }

    /// One string a row, one "cell value" each with the short name of its number format: 'd', 'i', 't' for a
    /// double, an integer, a date. Texts stand in quotes, '*' marks bold, '!' what is not centred.
    QStringList rows() const
    {
        QStringList rows;
        for (const QMap<int, QString> &cells : m_rows)
            rows.append(cells.values().join(" | "));
        return rows;
    }
    /// The rows, merges and widths, a line each.
    QString text() const
    {
        QStringList lines = rows() << merges << widths;
        lines.removeAll(QString());
        return lines.join('\n');
    }
    QString merges; ///< in the order of the sheet
    QString widths; ///< such as "1:25 2:25", of the first columns whose width is set
    /// Of the cell, to its last bit.
    double number(int row, int col) const { return m_document->read(row, col).toDouble(); }

private:
    void readSheet()
    {
        QXlsx::Worksheet *sheet = m_document->currentWorksheet();
        const QList<QXlsx::CellRange> ranges = sheet->mergedCells();
        for (const QXlsx::CellRange &range : ranges)
            merges += (merges.isEmpty() ? "" : " ") + range.toString();
        int lastRow = 0, lastColumn = 0;
        const auto cells = sheet->getFullCells(&lastRow, &lastColumn);
        for (const auto &place : cells)
            m_rows[place.row][place.col] =
                QXlsx::CellReference(place.row, place.col).toString() + ' ' + written(*place.cell);
        for (int col = 1; col <= qMin(lastColumn + 1, 50); ++col) {
            if (const double width = sheet->columnWidth(col); width > 20)
                widths += QString("%1:%2 ").arg(col).arg(width);
        }
        widths = widths.trimmed();
    }

    static QString written(const QXlsx::Cell &cell)
    {
        const QXlsx::Format format = cell.format();
        const QHash<QString, QString> marks{
            {"", ""}, {"#,##0.00######;-#,##0.00######", " d"}, {"#,##0;-#,##0", " i"}, {"yyyy-MM-dd", " t"}};
        const bool isCentred = format.horizontalAlignment() == QXlsx::Format::AlignHCenter &&
                               format.verticalAlignment() == QXlsx::Format::AlignVCenter;
        return content(cell) + marks.value(format.numberFormat(), " ?") + (format.fontBold() ? "*" : "") +
               (isCentred ? "" : "!");
    }

    static QString content(const QXlsx::Cell &cell)
    {
        switch (cell.cellType()) {
        case QXlsx::Cell::SharedStringType:
        case QXlsx::Cell::InlineStringType:
            return '\'' + cell.value().toString() + '\'';
        case QXlsx::Cell::BooleanType:
            return cell.value().toBool() ? "true" : "false";
        case QXlsx::Cell::NumberType:
        case QXlsx::Cell::DateType:
            return cell.value().isValid() ? QString::number(cell.value().toDouble(), 'g', 15) : "-";
        default:
            return "?";
        }
    }

    std::unique_ptr<QXlsx::Document> m_document;
    QMap<int, QMap<int, QString>> m_rows;
};
