#pragma once

#include "tftablemodeldata.h"

#include <QSharedDataPointer>
#include <QVector>

struct TFRowStoreData;

/// The built rows of one page of data, in compact form.
///
/// Rows with the same keys share one layout, which holds everything of their cells but the values; a row is
/// then its values and one number. Cells and whole rows are made on demand and equal those of a
/// QList<RowData> in every field. Copying a store is cheap (implicitly shared), so a parser hands it to a
/// model by value.
class TFRowStore
{
public:
    using Cell = TFTableModelData::tagCellValue;

    /// What the cells of a row have in common with those of other rows.
    struct Layout
    {
        QVector<Cell> cells;  ///< without their values; secuId only of the cells beyond securedCells
        int securedCells = 0; ///< that many leading cells carry the secuId of the row
    };

    TFRowStore();
    TFRowStore(const TFRowStore &other);
    TFRowStore &operator=(const TFRowStore &other);
    ~TFRowStore();

    /// Packs ready rows; rows() gives them back unchanged.
    static TFRowStore fromRows(const QList<RowData> &rows);

    bool isEmpty() const { return rowCount() == 0; }
    int rowCount() const;
    /// Cells of that row: the columns, then the further keys. 0 for a row that does not exist.
    int cellCount(int row) const;

    // The indices of what follows must be valid: 0 <= row < rowCount(), 0 <= index < cellCount(row).

    const QVariant &value(int row, int index) const;
    /// The cell without its value and, as a rule, without its secuId. Valid until the store changes.
    const Cell &prototype(int row, int index) const;
    double secuId(int row, int index) const;
    Cell cell(int row, int index) const;
    RowData row(int row) const;

    /// All rows in full; costs many times the memory of the store.
    QList<RowData> rows() const;

    // Filling.

    void clear();
    /// Announces how many rows will be appended.
    void reserve(int rows);
    /// Index of the new layout, for appendRow().
    int addLayout(const Layout &layout);
    /// Appends a row of that layout and returns its values for writing: as many as the layout has cells, all
    /// invalid. The pointer is good as long as the store is neither cleared nor shared.
    QVariant *appendRow(int layout, double secuId);

private:
    QSharedDataPointer<TFRowStoreData> d;
};

Q_DECLARE_TYPEINFO(TFRowStore, Q_MOVABLE_TYPE);
