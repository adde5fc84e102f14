#include "emptyscreen.h"

#include "componentcatalog.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int ButtonWidth = 240;
}

EmptyScreen::EmptyScreen(const ComponentCatalog *catalog, QWidget *parent)
    : QWidget(parent)
    , m_catalog(catalog)
    , m_title(new QLabel)
    , m_hint(new QLabel)
    , m_buttons(new QVBoxLayout)
{
    setObjectName("EmptyScreen");
    m_title->setObjectName("EmptyScreenTitle");
    m_hint->setObjectName("EmptyScreenHint");
    m_title->setAlignment(Qt::AlignCenter);
    m_hint->setAlignment(Qt::AlignCenter);
    m_buttons->setSpacing(8);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addStretch(2);
    layout->addWidget(m_title);
    layout->addWidget(m_hint);
    layout->addSpacing(8);
    layout->addLayout(m_buttons);
    layout->addStretch(3);
    retranslate();
}

void EmptyScreen::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void EmptyScreen::retranslate()
{
    m_title->setText(tr("This screen is empty"));
    const bool none = m_catalog->classes().isEmpty();
    m_hint->setText(none ? tr("No plug-in offers components.")
                         : tr("Place a first component; more go beside and below it."));
    makeButtons();
}

void EmptyScreen::makeButtons()
{
    while (QLayoutItem *item = m_buttons->takeAt(0)) {
        item->widget()->deleteLater();
        delete item;
    }
    for (const QByteArray &name : m_catalog->classes()) {
        auto *button = new QPushButton(m_catalog->caption(name).replace('&', "&&"));
        button->setObjectName("PlaceComponent");
        button->setFixedWidth(ButtonWidth);
        m_buttons->addWidget(button, 0, Qt::AlignHCenter);
        connect(button, &QPushButton::clicked, this, [this, name] { emit chosen(name); });
    }
}
