#include <gridcontrol/gridband.h>

#include <gridcontrol/gridbandedview.h>

#include "columnlayout.h"

namespace Qtitan {

GridTableBand::GridTableBand(GridViewBase *view, int index)
    : GridColumnBase(view, index)
{
    setTextAlignment(Qt::AlignCenter);
}

void GridTableBand::setBandIndex(int band)
{
    GridTableBand *parent = static_cast<GridBandedTableView *>(view())->getBand(band);
    if (parent != this && !(parent && parent->isDescendant(this)))
        setParentBand(parent);
}

bool GridTableBand::isBottomBand() const
{
    const auto *banded = static_cast<GridBandedTableView *>(view());
    for (int i = 0; i < banded->bandCount(); ++i)
        if (banded->getBand(i)->parentBand() == this)
            return false;
    return true;
}

bool GridTableBand::isDescendant(const GridTableBand *band) const
{
    for (const GridTableBand *above = parentBand(); above; above = above->parentBand())
        if (above == band)
            return true;
    return false;
}

bool GridTableBand::holds(const GridColumn *column) const
{
    const GridTableBand *parent = column->parentBand();
    return parent && (parent == this || parent->isDescendant(this));
}

QVector<GridColumn *> GridTableBand::columns() const
{
    QVector<GridColumn *> below;
    for (GridColumn *column : view()->shownColumns())
        if (holds(column))
            below.append(column);
    return below;
}

int GridTableBand::width() const
{
    int sum = 0;
    for (const GridColumn *column : columns())
        sum += column->width();
    return sum;
}

void GridTableBand::setWidth(int pixels)
{
    const QVector<GridColumn *> below = columns();
    QVector<int> widths;
    for (const GridColumn *column : below)
        widths.append(column->width());
    shareWidth(below, widths, pixels);
}

} // namespace Qtitan
