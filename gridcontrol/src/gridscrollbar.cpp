#include "gridscrollbar.h"

#include <QStyle>
#include <QStyleOptionSlider>

namespace Qtitan {

GridScrollBar::Look GridScrollBar::look() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return {style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this),
            value() == minimum(), value() == maximum()};
}

void GridScrollBar::sliderChange(SliderChange change)
{
    if (change != SliderValueChange || !(look() == m_painted))
        QScrollBar::sliderChange(change);
}

void GridScrollBar::paintEvent(QPaintEvent *event)
{
    m_painted = look();
    QScrollBar::paintEvent(event);
}

} // namespace Qtitan
