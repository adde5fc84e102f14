#pragma once

#include "tfframelesshelper.h"
#include "tfshadow.h"

/// A shadowed top-level widget that the mouse moves and resizes although it has no window frame.
template <typename T> class TFAdWidget : public TFShadow<T>
{
public:
    explicit TFAdWidget(QWidget *parent = nullptr)
        : TFShadow<T>(parent)
        , m_helper(new TFFramelessHelper(this))
    {
        m_helper->activateOn(this);
    }

    /// Movable by dragging the top \a height pixels.
    void setWidgetMovable(bool movable, int height) { m_helper->setWidgetMovable(movable, height); }
    void setWidgetResizable(bool resizable) { m_helper->setWidgetResizable(resizable); }

private:
    TFFramelessHelper *m_helper;
};
