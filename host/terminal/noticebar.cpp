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
    connect(m_action, &QPushButton::clicked, this, &NoticeBar::serviceActionTriggered);
    connect(close, &QToolButton::clicked, this, [this] {
        m_lines.fill(QString());
        refresh();
    });
    refresh();
}

void NoticeBar::tell(Subject subject, const QString &text)
{
    m_lines[subject] = text;
    refresh();
}

void NoticeBar::setServiceAction(const QString &text)
{
    m_action->setText(text);
}

QString NoticeBar::text() const
{
    return m_text->text();
}

void NoticeBar::refresh()
{
    QStringList lines;
    for (const QString &line : m_lines) {
        if (!line.isEmpty())
            lines.append(line);
    }
    m_text->setText(lines.join('\n'));
    m_action->setVisible(!m_lines[Service].isEmpty());
    setVisible(!lines.isEmpty());
}
