#include "tfcore/tfviewscrollbarexpand.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QScrollBar>

namespace {
constexpr int NarrowWidth = 6;
constexpr int WideWidth = 12;
} // namespace

TFViewScrollbarExpand::TFViewScrollbarExpand(QAbstractItemView *view, QObject *parent)
    : QObject(parent)
    , m_view(view)
{
    if (!m_view)
        return;
    m_view->installEventFilter(this);
    setExpanded(m_view->underMouse());
}

bool TFViewScrollbarExpand::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Enter)
        setExpanded(true);
    else if (event->type() == QEvent::Leave)
        setExpanded(false);
    return false;
}

void TFViewScrollbarExpand::setExpanded(bool expanded)
{
    const int width = expanded ? WideWidth : NarrowWidth;
    m_view->verticalScrollBar()->setStyleSheet(QString("QScrollBar:vertical { width: %1px; }").arg(width));
}
