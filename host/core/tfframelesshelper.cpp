#include "tfcore/tfframelesshelper.h"

#include <QApplication>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace {
constexpr int EdgeWidth = 5;

Qt::CursorShape cursorFor(Qt::Edges edges)
{
    const bool left = edges & Qt::LeftEdge;
    const bool top = edges & Qt::TopEdge;
    const bool horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (horizontal && vertical)
        return left == top ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    if (horizontal)
        return Qt::SizeHorCursor;
    return vertical ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

/// \a start with the dragged \a edges moved by \a by, not below \a minimum.
QRect resized(QRect start, Qt::Edges edges, QPoint by, QSize minimum)
{
    QRect to = start;
    if (edges & Qt::LeftEdge)
        to.setLeft(qMin(start.left() + by.x(), start.right() - minimum.width() + 1));
    if (edges & Qt::RightEdge)
        to.setRight(qMax(start.right() + by.x(), start.left() + minimum.width() - 1));
    if (edges & Qt::TopEdge)
        to.setTop(qMin(start.top() + by.y(), start.bottom() - minimum.height() + 1));
    if (edges & Qt::BottomEdge)
        to.setBottom(qMax(start.bottom() + by.y(), start.top() + minimum.height() - 1));
    return to;
}
} // namespace

TFFramelessHelper::TFFramelessHelper(QObject *parent)
    : QObject(parent)
{}

TFFramelessHelper::~TFFramelessHelper() = default;

void TFFramelessHelper::activateOn(QWidget *topLevel)
{
    if (!topLevel)
        return;
    // Hover events reach the window even while the mouse is over a child that tracks nothing.
    topLevel->setAttribute(Qt::WA_Hover);
    topLevel->installEventFilter(this);
}

void TFFramelessHelper::setWidgetMovable(bool movable, int height)
{
    m_movable = movable;
    m_dragHeight = height;
}

void TFFramelessHelper::setWidgetResizable(bool resizable)
{
    m_resizable = resizable;
}

Qt::Edges TFFramelessHelper::edgesAt(const QWidget *widget, const QPoint &position) const
{
    Qt::Edges edges;
    if (!m_resizable || widget->isMaximized() || widget->isFullScreen())
        return edges;
    edges.setFlag(Qt::LeftEdge, position.x() < EdgeWidth);
    edges.setFlag(Qt::RightEdge, position.x() >= widget->width() - EdgeWidth);
    edges.setFlag(Qt::TopEdge, position.y() < EdgeWidth);
    edges.setFlag(Qt::BottomEdge, position.y() >= widget->height() - EdgeWidth);
    return edges;
}

bool TFFramelessHelper::press(QWidget *widget, const QMouseEvent *event)
{
    m_edges = edgesAt(widget, event->pos());
    const bool inDragArea = m_dragHeight <= 0 || event->pos().y() < m_dragHeight;
    m_dragging = event->button() == Qt::LeftButton && (m_edges || (m_movable && inDragArea));
    m_pressPosition = event->globalPos();
    m_pressGeometry = widget->geometry();
    return m_dragging;
}

bool TFFramelessHelper::drag(QWidget *widget, const QMouseEvent *event)
{
    const QPoint by = event->globalPos() - m_pressPosition;
    if (!m_dragging)
        return false;
    if (!m_edges && by.manhattanLength() < QApplication::startDragDistance() &&
        widget->geometry() == m_pressGeometry)
        return true;
    // A window manager that can do it also snaps, tiles and works where windows may not place themselves.
    QWindow *window = widget->windowHandle();
    if (window && (m_edges ? window->startSystemResize(m_edges) : window->startSystemMove()))
        m_dragging = false;
    else if (m_edges)
        widget->setGeometry(resized(m_pressGeometry, m_edges, by,
                                    widget->minimumSize().expandedTo(widget->minimumSizeHint())));
    else
        widget->move(m_pressGeometry.topLeft() + by);
    return true;
}

bool TFFramelessHelper::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return press(widget, static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        return drag(widget, static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return std::exchange(m_dragging, false);
    case QEvent::HoverMove:
        if (m_resizable && !m_dragging)
            widget->setCursor(cursorFor(edgesAt(widget, static_cast<QHoverEvent *>(event)->pos())));
        return false;
    default:
        return false;
    }
}
