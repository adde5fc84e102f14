#pragma once

#include "columnlayout.h"

#include <QRect>
#include <QVector>

namespace Qtitan {

class GridColumnBase;

/// One caption of the header: a column, or the part of a band over one unbroken run of columns.
struct HeaderCell
{
    GridColumnBase *item = nullptr;
    int firstSlot = 0;
    int lastSlot = 0;
    int level = 0;  ///< 0 at the top
    int levels = 1; ///< levels that the caption spans; above 1 for columns under fewer bands than others
    bool isBand = false;
    bool fixed = false;
};

/// The captions over the shown columns.
class HeaderLayout
{
public:
    void build(const ColumnLayout &columns);

    /// Levels of captions, at least 1.
    int depth() const { return m_depth; }
    const QVector<HeaderCell> &cells() const { return m_cells; }

    /// Rectangle on the screen of a cell, with levels of \a levelHeight pixels. Cells that scroll may reach
    /// below the fixed columns.
    QRect rect(const HeaderCell &cell, const ColumnLayout &columns, int offset, int levelHeight) const;

    /// Number of the cell under a point; -1 for none.
    int cellAt(const QPoint &point, const ColumnLayout &columns, int offset, int levelHeight) const;

private:
    QVector<HeaderCell> m_cells;
    int m_depth = 1;
};

} // namespace Qtitan
