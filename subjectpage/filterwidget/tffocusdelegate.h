#pragma once

#include <QStyledItemDelegate>

/// Paints list entries of the bar without the dotted frame of the focus.
class TFFocusDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TFFocusDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
