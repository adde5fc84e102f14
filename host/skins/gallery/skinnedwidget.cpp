#include "skinnedwidget.h"

#include <QPainter>
#include <QStyleOption>

SkinnedWidget::SkinnedWidget(QWidget *parent)
    : QWidget(parent)
{}

void SkinnedWidget::applySkinStyle(const QVariant &style)
{
    if (style.isValid())
        setStyleSheet(style.toString());
}

void SkinnedWidget::paintEvent(QPaintEvent *)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
