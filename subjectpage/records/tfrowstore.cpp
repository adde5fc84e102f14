#include "tfrowstore.h"

#include <QSharedData>

#include <tuple>
#include <vector>

struct TFRowStoreData : QSharedData
{
    struct Row
    {
        size_t firstValue;
        double secuId;
        int layout;
    };

    const TFRowStore::Layout &layoutOf(int row) const { return layouts[rows[row].layout]; }

    std::vector<TFRowStore::Layout> layouts;
    std::vector<Row> rows;
    std::vector<QVariant> values;
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
    for (const Cell &cell : row) {
        layout.cells.append(cell);
        layout.cells.last().value = QVariant();
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
        if (layout < 0 || !fits(store.d->layouts[layout], row))
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
    return d->values[d->rows[row].firstValue + size_t(index)];
}

const TFRowStore::Cell &TFRowStore::prototype(int row, int index) const
{
    return d->layoutOf(row).cells.at(index);
}

double TFRowStore::secuId(int row, int index) const
{
    const Layout &layout = d->layoutOf(row);
    return index < layout.securedCells ? d->rows[row].secuId : layout.cells.at(index).secuId;
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

void TFRowStore::reserve(int rows, int cells)
{
    d->rows.reserve(d->rows.size() + size_t(rows));
    d->values.reserve(d->values.size() + size_t(cells));
}

int TFRowStore::addLayout(const Layout &layout)
{
    d->layouts.push_back(layout);
    return int(d->layouts.size()) - 1;
}

QVariant *TFRowStore::appendRow(int layout, double secuId)
{
    TFRowStoreData &data = *d;
    const size_t first = data.values.size();
    data.rows.push_back({first, secuId, layout});
    data.values.resize(first + size_t(data.layouts[layout].cells.size()));
    return data.values.data() + first;
}
