#include <gridcontrol/gridtheme.h>

#include "gridcolors.h"

namespace Qtitan {

GridThemeManager::GridThemeManager(QObject *parent)
    : QObject(parent)
    , m_shade(GridColors::lightScheme())
{}

void GridThemeManager::setShadePalette(const QPalette &palette)
{
    m_shade = palette;
    emit themeChanged();
}

} // namespace Qtitan
