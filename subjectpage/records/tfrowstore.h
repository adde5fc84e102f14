#pragma once

#include "tfrawrows.h"
#include "tftablemodeldata.h"

#include <QVector>

#include <memory>
#include <vector>

/// The built rows of one page of data: the raw rows as they came, and how the cells of a row take their
/// values from them.
///
/// Raw rows of the same shape share one layout, which holds everything of their cells but the values. Cells
/// and whole rows are made on demand and equal those of a QList<RowData> in every field. Copying a store is
/// cheap (it shares its contents, which never change), so a parser hands it to a model by value.
class TFRowStore
{
public:
    using Cell = TFTableModelData::tagCellValue;

    /// What the cells of a row have in common with those of other rows.
    struct Layout
    {
        static constexpr int NoPlace = -1;

        QVector<Cell> cells;       ///< without their values; secuId only of the cells beyond securedCells
        QVector<int> places;       ///< of each cell's value in the raw row; NoPlace, or computedPlace()
        int securedCells = 0;      ///< that many leading cells carry the secuId of the row
        int secuIdPlace = NoPlace; ///< of the value that is the secuId of the row
    };

    /// The place of a cell whose value is the \a column-th computed one of its row.
    static constexpr int computedPlace(int column) { return Layout::NoPlace - 1 - column; }

    TFRowStore();
    /// Builds the rows over \a rows, with a layout for each of their shapes. \a computed has
    /// \a computedColumns values a row.
    TFRowStore(TFRawRowsPtr rows, std::vector<Layout> layouts, TFValueList computed, int computedColumns);

    /// Packs ready rows; rows() gives them back unchanged.
    static TFRowStore fromRows(const QList<RowData> &rows);

    bool isEmpty() const { return rowCount() == 0; }
    int rowCount() const { return d->raw->rowCount(); }
    /// Cells of that row: the columns, then the further keys. 0 for a row that does not exist.
    int cellCount(int row) const;

    // The indices of what follows must be valid: 0 <= row < rowCount(), 0 <= index < cellCount(row).

    QVariant value(int row, int index) const;
    /// The cell without its value and, as a rule, without its secuId. Valid as long as the store.
    const Cell &prototype(int row, int index) const { return layoutOf(row).cells.at(index); }
    double secuId(int row, int index) const;
    Cell cell(int row, int index) const;
    RowData row(int row) const;

    /// All rows in full; costs many times the memory of the store.
    QList<RowData> rows() const;

    void clear() { *this = TFRowStore(); }

private:
    struct Data
    {
        TFRawRowsPtr raw;
        std::vector<Layout> layouts; ///< by shape
        TFValueList computed;
        int computedColumns;
    };

    const Layout &layoutOf(int row) const { return d->layouts[size_t(d->raw->shapeOf(row))]; }

    std::shared_ptr<const Data> d;
};
