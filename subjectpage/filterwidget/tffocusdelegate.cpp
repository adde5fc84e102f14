#include "tffocusdelegate.h"

#include <QPainter>

TFFocusDelegate::TFFocusDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{}

void TFFocusDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem frameless = option;
    if (frameless.state & QStyle::State_HasFocus) {
        frameless.state &= ~QStyle::State_HasFocus;
        painter->setBrush(QColor(QStringLiteral("#464b5a")));
    }
    QStyledItemDelegate::paint(painter, frameless, index);
}
