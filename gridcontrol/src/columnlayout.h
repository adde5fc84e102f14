#pragma once

#include <QVector>

namespace Qtitan {

class GridColumn;
class GridColumnBase;
class GridTableBand;

/// Where one shown column stands.
struct ColumnSlot
{
    GridColumn *column = nullptr;
    int left = 0; ///< from the left end of all columns, fixed ones included
    int width = 0;
    bool fixed = false;
    bool strongRight = false; ///< the fixed edge, or the edge of a band of the top level

    int right() const { return left + width; }
};

/// The shown columns from left to right. Pixels on the screen count from the left edge of the viewport; \a
/// offset is how far the columns that are not fixed are scrolled.
class ColumnLayout
{
public:
    /// Columns stay unfixed where fixing them would leave less than a narrow strip of \a viewportWidth to
    /// scroll.
    void build(const QVector<GridColumn *> &shown, int viewportWidth);

    int count() const { return m_slots.size(); }
    const ColumnSlot &at(int slot) const { return m_slots.at(slot); }
    int fixedCount() const { return m_fixedCount; }
    int fixedWidth() const { return m_fixedCount ? m_slots.at(m_fixedCount - 1).right() : 0; }
    int totalWidth() const { return m_slots.isEmpty() ? 0 : m_slots.last().right(); }

    /// Slot of a column; -1 if it is not shown.
    int slotOf(const GridColumn *column) const;
    int slotOfModelColumn(int column) const { return m_slotOfColumn.value(column, -1); }

    /// Left edge on the screen.
    int screenLeft(int slot, int offset) const;

    /// Slot under \a x on the screen; -1 beyond the columns.
    int slotAt(int x, int offset) const;

    /// First scrolling slot whose right edge lies right of \a x on the screen; count() if none.
    int firstScrolledAfter(int x, int offset) const;

private:
    QVector<ColumnSlot> m_slots;
    QVector<int> m_slotOfColumn;
    int m_fixedCount = 0;
};

/// Gives \a columns widths in the proportion of \a weights that add up to \a total, as far as the least width
/// allows.
void shareWidth(const QVector<GridColumn *> &columns, const QVector<int> &weights, int total);

/// Pieces in which the bands stand over \a shown: as many as there are bands if none is torn apart.
int bandPieces(const QVector<GridColumn *> &shown);

/// Whether \a item, or a band over it, is fixed.
bool isFixed(const GridColumnBase *item);

/// Whether \a item and every band over it is visible; true for null.
bool isShown(const GridColumnBase *item);

/// The topmost band over \a column that has a caption; null if there is none.
const GridTableBand *topBand(const GridColumn *column);

} // namespace Qtitan
