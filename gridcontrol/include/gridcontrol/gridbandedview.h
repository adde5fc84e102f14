#pragma once

#include <gridcontrol/gridband.h>
#include <gridcontrol/gridview.h>

namespace Qtitan {

/// Columns under any number of levels of bands.
class GridBandedTableView : public GridTableView
{
    Q_OBJECT

public:
    using GridTableView::GridTableView;
    ~GridBandedTableView() override;

    /// Adds a band at the top level. Owned by the view.
    GridTableBand *addBand(const QString &caption);

    int bandCount() const { return m_bands.size(); }

    /// Band in the order of creation; null if there is none of that number.
    GridTableBand *getBand(int index) const { return m_bands.value(index); }

protected:
    GridColumn *makeColumn(int index) override;

private:
    QVector<GridTableBand *> m_bands;
};

} // namespace Qtitan
