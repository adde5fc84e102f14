#include <gridcontrol/grideditor.h>

namespace Qtitan {

void GridStringEditorRepository::setHLink(bool on)
{
    if (m_hLink == on)
        return;
    m_hLink = on;
    emit changed();
}

} // namespace Qtitan
