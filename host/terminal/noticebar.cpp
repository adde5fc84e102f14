#include "noticebar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel)
    , m_action(new QPushButton)
{
    setObjectName("NoticeBar");
    m_text->setObjectName("NoticeText");
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_action->setObjectName("NoticeAction");
    auto *close = new QToolButton;
    close->setObjectName("NoticeClose");
    close->setText(QChar(0x00d7));
    close->setAutoRaise(true);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 8, 4);
    layout->setSpacing(8);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_action);
    layout->addWidget(close);
    connect(m_action, &QPushButton::clicked, this, &NoticeBar::actionTriggered);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void NoticeBar::tell(const QString &text, const QString &action)
{
    m_text->setText(text);
    m_action->setText(action);
    m_action->setVisible(!action.isEmpty());
    setVisible(!text.isEmpty());
}

QString NoticeBar::text() const
{
    return m_text->text();
}
