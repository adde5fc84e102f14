#pragma once

#include "tfcoreglobal.h"

#include <QObject>

class QAbstractItemView;

/// Shows a wider scroll bar while the mouse is over an item view. Goes with its parent.
class TFCORE_EXPORT TFViewScrollbarExpand : public QObject
{
    Q_OBJECT

public:
    TFViewScrollbarExpand(QAbstractItemView *view, QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setExpanded(bool expanded);

    QAbstractItemView *m_view;
};
