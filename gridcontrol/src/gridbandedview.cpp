#include <gridcontrol/gridbandedview.h>

#include "gridarea.h"

namespace Qtitan {

GridBandedTableView::~GridBandedTableView() = default;

GridTableBand *GridBandedTableView::addBand(const QString &caption)
{
    auto *band = new GridTableBand(this, m_bands.size());
    band->setCaption(caption);
    connect(band, &GridColumnBase::placeChanged, area(), &GridArea::columnsChanged);
    connect(band, &GridColumnBase::captionChanged, area(), &GridArea::columnsChanged);
    m_bands.append(band);
    return band;
}

GridColumn *GridBandedTableView::makeColumn(int index)
{
    return new GridBandedTableColumn(this, index);
}

} // namespace Qtitan
