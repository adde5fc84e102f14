#include "tfmenubutton.h"

#include <QMenu>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace {
/// The text begins where that of a combo box does.
constexpr int TextMargin = 7;
} // namespace

TFMenuButton::TFMenuButton(QWidget *parent)
    : QToolButton(parent)
{
    setPopupMode(QToolButton::MenuButtonPopup);
    setFocusPolicy(Qt::StrongFocus);
    setMenu(new QMenu(this));
    connect(this, &QToolButton::clicked, this, &QToolButton::showMenu);
}

void TFMenuButton::reopenMenu()
{
    if (isVisible() && !menu()->isVisible())
        QMetaObject::invokeMethod(this, &QToolButton::showMenu, Qt::QueuedConnection);
}

void TFMenuButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    // A tool button centres its text and cuts it on both sides; the boxes of the bar begin at the left.
    const QRect arrow =
        style()->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu, this);
    const QRect room(TextMargin, 0, arrow.left() - TextMargin, height());
    painter.drawItemText(room, Qt::AlignLeft | Qt::AlignVCenter, option.palette, isEnabled(),
                         option.fontMetrics.elidedText(text(), Qt::ElideRight, room.width()),
                         QPalette::ButtonText);
}
