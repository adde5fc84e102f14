#pragma once

#include <gridcontrol/gridcolumn.h>

namespace Qtitan {

/// A caption over columns and further bands.
///
/// A band is drawn over each unbroken run of shown columns that stand under it, so a band whose columns are
/// partly fixed shows on both sides of the edge, and one without shown columns takes no room. A band without
/// a caption over a single column is not drawn: the column's caption grows upwards in its stead.
class GridTableBand : public GridColumnBase
{
    Q_OBJECT

public:
    GridTableBand(GridViewBase *view, int index);

    /// Puts this band under the band of that number; -1, or a number that no band has, at the top. A band
    /// that would come to stand under itself stays where it is.
    void setBandIndex(int band);

    /// Whether no band stands under this one.
    bool isBottomBand() const;

    /// Whether this band stands below \a band, at any depth. False for the band itself.
    bool isDescendant(const GridTableBand *band) const;

    /// Whether \a column stands below this band, at any depth.
    bool holds(const GridColumn *column) const;

    /// Sum of the widths of the shown columns under the band.
    int width() const override;
    void setWidth(int pixels) override;

    /// Shown columns under the band, at any depth, as they stand on the screen.
    QVector<GridColumn *> columns() const;
};

} // namespace Qtitan
