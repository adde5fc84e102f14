#include "tfrowstore.h"

#include <QSharedData>

#include <algorithm>
#include <memory>
#include <tuple>
#include <vector>

struct TFRowStoreData : QSharedData
{
    struct Row
    {
        QVariant *values;
        double secuId;
        int layout;
    };

    TFRowStoreData() = default;
    TFRowStoreData(const TFRowStoreData &other)
        : QSharedData(other)
        , layouts(other.layouts)
    {
        for (const Row &row : other.rows) {
            QVariant *values = appendRow(row.layout, row.secuId);
            std::copy_n(row.values, layouts[size_t(row.layout)].cells.size(), values);
        }
    }

    const TFRowStore::Layout &layoutOf(int row) const { return layouts[size_t(rows[size_t(row)].layout)]; }

    QVariant *appendRow(int layout, double secuId)
    {
        const auto count = size_t(layouts[size_t(layout)].cells.size());
        if (chunkSize - chunkUsed < count)
            addChunk(count);
        QVariant *values = chunks.empty() ? nullptr : chunks.back().get() + chunkUsed;
        chunkUsed += count;
        rows.push_back({values, secuId, layout});
        return values;
    }

    std::vector<TFRowStore::Layout> layouts;
    std::vector<Row> rows;

private:
    /// Values lie in chunks that never move, each as large as all before it within bounds.
    void addChunk(size_t needed)
    {
        constexpr size_t Smallest = 1024;
        constexpr size_t Largest = 65536;
        chunkTotal += chunkSize;
        chunkSize = std::max(needed, std::clamp(chunkTotal, Smallest, Largest));
        chunkUsed = 0;
        chunks.push_back(std::make_unique<QVariant[]>(chunkSize));
    }

    std::vector<std::unique_ptr<QVariant[]>> chunks;
    size_t chunkSize = 0;
    size_t chunkUsed = 0;
    size_t chunkTotal = 0;
};

namespace {
using Cell = TFTableModelData::tagCellValue;

auto sharedPart(const Cell &c)
{
    return std::tie(c.fieldName, c.valueType, c.textAlignment, c.url, c.formatString, c.prevUnitFactor,
                    c.showUnitFactor, c.baseShowUnitFactor, c.unitCategory, c.columnType, c.captionShowType);
}

/// True when \a row can be kept as values under \a layout.
bool fits(const TFRowStore::Layout &layout, const RowData &row)
{
    if (layout.cells.size() != row.size())
        return false;
    for (int i = 0; i < row.size(); ++i) {
        const double secuId = i < layout.securedCells ? row.first().secuId : layout.cells.at(i).secuId;
        if (row.at(i).secuId != secuId || sharedPart(row.at(i)) != sharedPart(layout.cells.at(i)))
            return false;
    }
    return true;
}

TFRowStore::Layout layoutOf(const RowData &row)
{
    TFRowStore::Layout layout;
    layout.cells.reserve(row.size());
    for (Cell cell : row) {
        cell.value.clear();
        layout.cells.append(cell);
    }
    while (layout.securedCells < row.size() && row.at(layout.securedCells).secuId == row.first().secuId)
        ++layout.securedCells;
    return layout;
}
} // namespace

TFRowStore::TFRowStore()
    : d(new TFRowStoreData)
{}

TFRowStore::TFRowStore(const TFRowStore &other) = default;
TFRowStore &TFRowStore::operator=(const TFRowStore &other) = default;
TFRowStore::~TFRowStore() = default;

TFRowStore TFRowStore::fromRows(const QList<RowData> &rows)
{
    TFRowStore store;
    int layout = -1;
    for (const RowData &row : rows) {
        if (layout < 0 || !fits(store.d->layouts[size_t(layout)], row))
            layout = store.addLayout(layoutOf(row));
        QVariant *values = store.appendRow(layout, row.isEmpty() ? 0 : row.first().secuId);
        for (const Cell &cell : row)
            *values++ = cell.value;
    }
    return store;
}

int TFRowStore::rowCount() const
{
    return int(d->rows.size());
}

int TFRowStore::cellCount(int row) const
{
    return row >= 0 && row < rowCount() ? d->layoutOf(row).cells.size() : 0;
}

const QVariant &TFRowStore::value(int row, int index) const
{
    return d->rows[size_t(row)].values[index];
}

const TFRowStore::Cell &TFRowStore::prototype(int row, int index) const
{
    return d->layoutOf(row).cells.at(index);
}

double TFRowStore::secuId(int row, int index) const
{
    const Layout &layout = d->layoutOf(row);
    return index < layout.securedCells ? d->rows[size_t(row)].secuId : layout.cells.at(index).secuId;
}

TFRowStore::Cell TFRowStore::cell(int row, int index) const
{
    Cell cell = prototype(row, index);
    cell.secuId = secuId(row, index);
    cell.value = value(row, index);
    return cell;
}

RowData TFRowStore::row(int row) const
{
    RowData cells;
    const int count = cellCount(row);
    cells.reserve(count);
    for (int i = 0; i < count; ++i)
        cells.append(cell(row, i));
    return cells;
}

QList<RowData> TFRowStore::rows() const
{
    QList<RowData> all;
    all.reserve(rowCount());
    for (int i = 0; i < rowCount(); ++i)
        all.append(row(i));
    return all;
}

void TFRowStore::clear()
{
    d = new TFRowStoreData;
}

void TFRowStore::reserve(int rows)
{
    d->rows.reserve(d->rows.size() + size_t(rows));
}

int TFRowStore::addLayout(const Layout &layout)
{
    d->layouts.push_back(layout);
    return int(d->layouts.size()) - 1;
}

QVariant *TFRowStore::appendRow(int layout, double secuId)
{
    return d->appendRow(layout, secuId);
}
