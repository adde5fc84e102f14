#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace Qtitan {

class GridArea;
class GridColumn;

/// Fills the context menu of the cells; that of the header is in it, so that the keyboard reaches all of
/// both.
void fillCellMenu(QMenu &menu, GridArea &area);

/// Fills the context menu of the header, for \a column, or for the header beside all columns if it is null.
void fillHeaderMenu(QMenu &menu, GridArea &area, GridColumn *column);

} // namespace Qtitan
