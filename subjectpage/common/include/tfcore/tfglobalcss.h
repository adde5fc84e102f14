#pragma once

#include "tfcoreglobal.h"

#include <QColor>

/// Colours of the current skin that painted code needs and no style sheet gives: the array "tipsColors" of
/// the skin's file skin.json. User-interface thread only.
class TFCORE_EXPORT TFGlobalCss
{
public:
    /// Colour number \a index of the skin's list of tips colours; 1 is the text and 2 the line of the grid's
    /// header. An index outside the list gives an invalid colour.
    static QColor getTipsColorByIndex(int index);
};
