#include "tfrowstore.h"

#include <numeric>
#include <tuple>

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

/// The layout of \a row with all its values in their order, followed by its secuId.
TFRowStore::Layout packedLayout(const RowData &row)
{
    TFRowStore::Layout layout;
    layout.cells.reserve(row.size());
    for (Cell cell : row) {
        cell.value.clear();
        layout.cells.append(cell);
    }
    while (layout.securedCells < row.size() && row.at(layout.securedCells).secuId == row.first().secuId)
        ++layout.securedCells;
    layout.places.resize(row.size());
    std::iota(layout.places.begin(), layout.places.end(), 0);
    layout.secuIdPlace = row.size();
    return layout;
}
} // namespace

TFRowStore::TFRowStore()
    : TFRowStore(std::make_shared<TFRawRows>(), {}, {}, 0)
{}

TFRowStore::TFRowStore(TFRawRowsPtr rows, std::vector<Layout> layouts, TFValueList computed,
                       int computedColumns)
    : d(std::make_shared<Data>(
          Data{std::move(rows), std::move(layouts), std::move(computed), computedColumns}))
{}

TFRowStore TFRowStore::fromRows(const QList<RowData> &rows)
{
    auto raw = std::make_shared<TFRawRows>();
    std::vector<Layout> layouts;
    for (const RowData &row : rows) {
        if (layouts.empty() || !fits(layouts.back(), row)) {
            layouts.push_back(packedLayout(row));
            raw->addShape({});
        }
        for (const Cell &cell : row)
            raw->values().append(cell.value);
        raw->values().append(row.isEmpty() ? 0 : row.first().secuId);
        raw->endRow(int(layouts.size()) - 1);
    }
    return TFRowStore(std::move(raw), std::move(layouts), {}, 0);
}

int TFRowStore::cellCount(int row) const
{
    return row >= 0 && row < rowCount() ? layoutOf(row).cells.size() : 0;
}

QVariant TFRowStore::value(int row, int index) const
{
    const int place = layoutOf(row).places.at(index);
    if (place >= 0)
        return d->raw->value(row, place);
    if (place == Layout::NoPlace)
        return {};
    return d->computed.at(size_t(row) * size_t(d->computedColumns) + size_t(computedPlace(place)));
}

double TFRowStore::secuId(int row, int index) const
{
    const Layout &layout = layoutOf(row);
    if (index >= layout.securedCells)
        return layout.cells.at(index).secuId;
    return layout.secuIdPlace == Layout::NoPlace ? 0 : d->raw->number(row, layout.secuIdPlace);
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
