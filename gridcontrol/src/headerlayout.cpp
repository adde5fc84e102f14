#include "headerlayout.h"

#include <gridcontrol/gridband.h>

#include <algorithm>

namespace Qtitan {

namespace {
using Chain = QVector<GridTableBand *>;

Chain bandsOver(const GridColumn *column)
{
    Chain chain;
    for (GridTableBand *band = column->parentBand(); band; band = band->parentBand())
        chain.prepend(band);
    return chain;
}

bool sameUpTo(const Chain &a, const Chain &b, int level)
{
    return level < a.size() && level < b.size() && std::equal(a.begin(), a.begin() + level + 1, b.begin());
}

// A band without a caption over one column only makes room for it: the caption of the column takes the place.
void dropPlaceholders(QVector<Chain> &chains, const ColumnLayout &columns)
{
    const QVector<Chain> whole = chains;
    const auto joined = [&](int slot, int neighbour, int level) {
        return neighbour >= 0 && neighbour < whole.size() &&
               columns.at(slot).fixed == columns.at(neighbour).fixed &&
               sameUpTo(whole.at(slot), whole.at(neighbour), level);
    };
    for (int slot = 0; slot < whole.size(); ++slot) {
        chains[slot].clear();
        for (int level = 0; level < whole.at(slot).size(); ++level) {
            GridTableBand *band = whole.at(slot).at(level);
            if (!band->caption().isEmpty() || joined(slot, slot - 1, level) || joined(slot, slot + 1, level))
                chains[slot].append(band);
        }
    }
}
} // namespace

void HeaderLayout::build(const ColumnLayout &columns)
{
    m_cells.clear();
    QVector<Chain> chains;
    for (int slot = 0; slot < columns.count(); ++slot)
        chains.append(bandsOver(columns.at(slot).column));
    dropPlaceholders(chains, columns);

    m_depth = 1;
    for (const Chain &chain : chains)
        m_depth = std::max(m_depth, int(chain.size()) + 1);
    for (int slot = 0; slot < columns.count(); ++slot) {
        const Chain &chain = chains.at(slot);
        const bool fixed = columns.at(slot).fixed;
        for (int level = 0; level < chain.size(); ++level) {
            const auto continues = [&](int other) {
                return columns.at(other).fixed == fixed && sameUpTo(chain, chains.at(other), level);
            };
            if (slot > 0 && continues(slot - 1))
                continue;
            int last = slot;
            while (last + 1 < columns.count() && continues(last + 1))
                ++last;
            m_cells.append({chain.at(level), slot, last, level, 1, true, fixed});
        }
        m_cells.append({columns.at(slot).column, slot, slot, int(chain.size()), m_depth - int(chain.size()),
                        false, fixed});
    }
}

QRect HeaderLayout::rect(const HeaderCell &cell, const ColumnLayout &columns, int offset,
                         int levelHeight) const
{
    const int left = columns.screenLeft(cell.firstSlot, offset);
    const int right = columns.screenLeft(cell.lastSlot, offset) + columns.at(cell.lastSlot).width;
    return QRect(left, cell.level * levelHeight, right - left, cell.levels * levelHeight);
}

int HeaderLayout::cellAt(const QPoint &point, const ColumnLayout &columns, int offset, int levelHeight) const
{
    const bool overFixed = point.x() < columns.fixedWidth();
    for (int i = 0; i < m_cells.size(); ++i)
        if (m_cells.at(i).fixed == overFixed &&
            rect(m_cells.at(i), columns, offset, levelHeight).contains(point))
            return i;
    return -1;
}

} // namespace Qtitan
