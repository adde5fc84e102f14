#pragma once

#include <QMetaType>

namespace Qtitan {

/// Kinds of root view that Grid::setViewType() makes.
enum ViewType { PlainTableView = 1, BandedTableView = 2 };

/// Where a column stays when the others scroll.
enum FixedKind { NotFixed = 0, FixedLeft = 1 };

/// Lines between the cells.
enum GridLines {
    NoGridLines = 0,
    BothGridLines = 1,       ///< rows and columns, in the same line colour
    HorizontalGridLines = 2, ///< rows only
    VerticalGridLines = 3,   ///< columns only
    SoftGridLines = 5        ///< rows in the line colour, columns in a lighter one
};

/// What a click, a drag and the keys select.
enum SelectionPolicy {
    NoSelection = 0,
    SingleRowSelection = 1,
    CellSelection = 2, ///< any block of cells, extended with Shift and Ctrl
    RowSelection = 3   ///< any whole rows, extended with Shift and Ctrl; the default
};

/// How the cells of a column show their value.
enum EditorType { NoEditor = 0, StringEditor = 1 };

enum ButtonIcon { CustomButtonIcon = 0, EllipsisButtonIcon = 1 };
enum ButtonPosition { ButtonLeft = 1, ButtonRight = 2 };

/// When a cell shows its button.
enum ButtonActivation {
    ShowButtonOnFocus = 0, ///< in the cell that has the focus
    ShowButtonOnHover = 1, ///< in the row under the pointer and in the focused cell
    ShowButtonAlways = 2
};

/// The three states that a click on a caption goes through.
enum SortState { AsDelivered = 0, SortUp = 1, SortDown = 2 };

} // namespace Qtitan
