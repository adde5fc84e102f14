#pragma once

#include "tfcoreglobal.h"

#include <QObject>
#include <QPoint>
#include <QRect>

class QMouseEvent;
class QWidget;

/// Makes top-level widgets without a frame movable and resizable by the mouse.
class TFCORE_EXPORT TFFramelessHelper : public QObject
{
    Q_OBJECT

public:
    explicit TFFramelessHelper(QObject *parent = nullptr);
    ~TFFramelessHelper() override;

    void activateOn(QWidget *topLevel);
    /// Movable by dragging the top \a height pixels; a height of 0 or less makes the whole widget drag.
    void setWidgetMovable(bool movable, int height);
    void setWidgetResizable(bool resizable);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool press(QWidget *widget, const QMouseEvent *event);
    bool drag(QWidget *widget, const QMouseEvent *event);
    Qt::Edges edgesAt(const QWidget *widget, const QPoint &position) const;

    bool m_movable = false;
    bool m_resizable = false;
    int m_dragHeight = 0;
    Qt::Edges m_edges;
    bool m_dragging = false;
    QPoint m_pressPosition;
    QRect m_pressGeometry;
};
