#pragma once

#include "tfcoreglobal.h"

#include <QPalette>

/// Colours of the current skin for what the widget style draws without a style sheet.
namespace TFSkinPalette {

/// \a base with the colours that the skin's file skin.json gives: its object "palette" holds "#RRGGBB" under
/// the names of colour roles, "disabledPalette" likewise for disabled widgets. Unknown roles and unreadable
/// colours are left out with a warning; without a skin \a base comes back as it is.
TFCORE_EXPORT QPalette current(const QPalette &base);

} // namespace TFSkinPalette
