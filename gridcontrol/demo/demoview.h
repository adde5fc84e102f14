#pragma once

namespace Qtitan {
class Grid;
}
class QuoteModel;

/// Sets \a grid up on \a model with three levels of bands, two fixed columns, links and cell buttons.
void showBanded(Qtitan::Grid &grid, QuoteModel &model);

/// The same columns side by side, without bands.
void showPlain(Qtitan::Grid &grid, QuoteModel &model);

/// Style sheets of the two schemes of the demonstration.
const char *lightSheet();
const char *darkSheet();
