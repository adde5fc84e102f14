#pragma once

#include <QString>

/// The one sheet of a workbook, filled cell by cell. All cells are centred both ways.
///
/// Rows and columns count from 1. The cells of the header come first, in any order; then beginData(), and the
/// data from top to bottom and left to right. What is given to a sheet is what a sheet can hold: see
/// TFSheetTable, which decides that.
class TFSheet
{
public:
    enum Style { Header, Plain, Double, Integer, Date, StyleCount };

    /// What sets a style apart.
    struct Look
    {
        bool isBold;
        const char *numberFormat; ///< null for none
    };

    static constexpr int MaxRows = 1048576;
    static constexpr int MaxColumns = 16384;
    static constexpr int MaxTextLength = 32767; ///< of one cell

    virtual ~TFSheet() = default;

    virtual void writeText(int row, int col, const QString &text, Style style) = 0;
    /// \a value must be finite.
    virtual void writeNumber(int row, int col, double value, Style style) = 0;
    virtual void writeBool(int row, int col, bool value, Style style) = 0;
    virtual void writeBlank(int row, int col, Style style) = 0;
    /// Makes one cell of header cells of a row; \a first, at most \a last, is written already.
    virtual void merge(int row, int first, int last) = 0;
    /// Ends the header. The data will fill \a rows rows and \a columns columns from \a firstRow on at most;
    /// these columns get \a width.
    virtual void beginData(int firstRow, int rows, int columns, double width) = 0;
    /// False once something could not be written.
    virtual bool isGood() const { return true; }

    static Look look(Style style);
    /// "A" for 1, "CZ" for 104, "DA" for 105.
    static QString columnName(int col);
    /// Such as "CZ7".
    static QString cellName(int row, int col) { return columnName(col) + QString::number(row); }
};
