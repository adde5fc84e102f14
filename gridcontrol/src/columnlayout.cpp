#include "columnlayout.h"

#include <gridcontrol/gridband.h>

#include <algorithm>
#include <numeric>

namespace Qtitan {

namespace {
constexpr int leastScrolledStrip = 60;
} // namespace

bool isFixed(const GridColumnBase *item)
{
    return item && (item->fixedKind() == FixedLeft || isFixed(item->parentBand()));
}

bool isShown(const GridColumnBase *item)
{
    return !item || (item->isVisible() && isShown(item->parentBand()));
}

const GridTableBand *topBand(const GridColumn *column)
{
    const GridTableBand *top = nullptr;
    for (const GridTableBand *band = column->parentBand(); band; band = band->parentBand())
        if (!band->caption().isEmpty())
            top = band;
    return top;
}

int bandPieces(const QVector<GridColumn *> &shown)
{
    int pieces = 0;
    for (int i = 0; i < shown.size(); ++i)
        for (const GridTableBand *band = shown.at(i)->parentBand(); band; band = band->parentBand()) {
            const bool joined =
                i > 0 && isFixed(shown.at(i - 1)) == isFixed(shown.at(i)) && band->holds(shown.at(i - 1));
            pieces += !joined;
        }
    return pieces;
}

void shareWidth(const QVector<GridColumn *> &columns, const QVector<int> &weights, int total)
{
    int left = std::accumulate(weights.begin(), weights.end(), 0);
    // Each column takes its share of what is still to give, so that the rounding never adds up.
    for (int i = 0; i < columns.size(); ++i) {
        columns.at(i)->setWidth(left > 0 ? qRound(double(total) * weights.at(i) / left) : total);
        total -= columns.at(i)->width();
        left -= weights.at(i);
    }
}

void ColumnLayout::build(const QVector<GridColumn *> &shown, int viewportWidth)
{
    m_slots.clear();
    m_slots.reserve(shown.size());
    m_slotOfColumn.clear();
    m_fixedCount = 0;
    for (GridColumn *column : shown) {
        const int left = totalWidth();
        m_slots.append({column, left, column->width(), isFixed(column), false});
        if (m_slotOfColumn.size() <= column->index())
            m_slotOfColumn.insert(m_slotOfColumn.size(), column->index() + 1 - m_slotOfColumn.size(), -1);
        m_slotOfColumn[column->index()] = m_slots.size() - 1;
    }
    const auto edge =
        std::find_if(m_slots.begin(), m_slots.end(), [](const ColumnSlot &slot) { return !slot.fixed; });
    m_fixedCount = int(edge - m_slots.begin());
    if (fixedWidth() > viewportWidth - leastScrolledStrip && m_fixedCount < m_slots.size())
        m_fixedCount = 0;
    for (int i = 0; i < m_slots.size(); ++i) {
        m_slots[i].fixed = i < m_fixedCount;
        const GridTableBand *band = topBand(m_slots.at(i).column);
        const bool last = i + 1 == m_slots.size();
        m_slots[i].strongRight =
            i + 1 == m_fixedCount || (!last && band != topBand(m_slots.at(i + 1).column));
    }
}

int ColumnLayout::slotOf(const GridColumn *column) const
{
    for (int i = 0; i < m_slots.size(); ++i)
        if (m_slots.at(i).column == column)
            return i;
    return -1;
}

int ColumnLayout::screenLeft(int slot, int offset) const
{
    const ColumnSlot &place = m_slots.at(slot);
    return place.fixed ? place.left : place.left - offset;
}

int ColumnLayout::firstScrolledAfter(int x, int offset) const
{
    const auto first = m_slots.begin() + m_fixedCount;
    return int(std::upper_bound(first, m_slots.end(), x + offset,
                                [](int wanted, const ColumnSlot &slot) { return wanted < slot.right(); }) -
               m_slots.begin());
}

int ColumnLayout::slotAt(int x, int offset) const
{
    if (x < 0)
        return -1;
    if (x < fixedWidth()) {
        for (int i = 0; i < m_fixedCount; ++i)
            if (x < m_slots.at(i).right())
                return i;
    }
    const int slot = firstScrolledAfter(x, offset);
    return slot < count() ? slot : -1;
}

} // namespace Qtitan
