#pragma once

#include <QRect>
#include <QScrollBar>

namespace Qtitan {

/// A scroll bar that paints itself anew only when its handle comes to stand on another pixel, which in a long
/// table is once in many rows.
class GridScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    using QScrollBar::QScrollBar;

protected:
    void sliderChange(SliderChange change) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// What a value shows: where the handle stands, and whether it stands at an end.
    struct Look
    {
        QRect handle;
        bool first = false;
        bool last = false;

        bool operator==(const Look &other) const
        {
            return handle == other.handle && first == other.first && last == other.last;
        }
    };

    Look look() const;

    Look m_painted;
};

} // namespace Qtitan
