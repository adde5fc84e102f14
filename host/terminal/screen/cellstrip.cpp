#include "cellstrip.h"

#include "componentcatalog.h"
#include "look.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QStyle>
#include <QToolButton>

CellStrip::CellStrip(const ComponentCatalog *catalog, QWidget *parent)
    : QFrame(parent)
    , m_catalog(catalog)
    , m_title(new QLabel)
    , m_settings(makeButton("CellSettings"))
    , m_addRight(makeButton("CellAddRight"))
    , m_addBelow(makeButton("CellAddBelow"))
    , m_remove(makeButton("CellRemove"))
{
    setObjectName("CellStrip");
    m_title->setObjectName("CellTitle");
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_settings->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 0, 4, 0);
    layout->setSpacing(2);
    layout->addWidget(m_title, 1);
    for (QToolButton *button : {m_settings, m_addRight, m_addBelow, m_remove})
        layout->addWidget(button);
    giveMenu(m_addRight, Qt::Horizontal);
    giveMenu(m_addBelow, Qt::Vertical);
    connect(m_settings, &QToolButton::clicked, this, &CellStrip::settingsRequested);
    connect(m_remove, &QToolButton::clicked, this, &CellStrip::removeRequested);
    retranslate();
    redraw();
}

/// The buttons leave the keyboard to the component.
QToolButton *CellStrip::makeButton(const char *name)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setIconSize({16, 16});
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

void CellStrip::giveMenu(QToolButton *button, Qt::Orientation orientation)
{
    auto *menu = new QMenu(button);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    connect(menu, &QMenu::aboutToShow, this, [this, menu, orientation] {
        m_catalog->fill(
            menu, [this, orientation](const QByteArray &name) { emit addRequested(name, orientation); });
    });
}

void CellStrip::setTitle(const QString &title)
{
    m_text = title;
    m_title->setToolTip(title);
    elideTitle();
}

void CellStrip::setSettingsEnabled(bool enabled)
{
    m_settings->setEnabled(enabled);
}

void CellStrip::setCurrent(bool current)
{
    if (current == m_isCurrent)
        return;
    m_isCurrent = current;
    style()->unpolish(m_title);
    style()->polish(m_title);
}

void CellStrip::redraw()
{
    m_settings->setIcon(Look::icon("settings"));
    m_addRight->setIcon(Look::icon("add-right"));
    m_addBelow->setIcon(Look::icon("add-below"));
    m_remove->setIcon(Look::icon("remove"));
}

void CellStrip::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

void CellStrip::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    layout()->activate();
    elideTitle();
}

void CellStrip::elideTitle()
{
    m_title->setText(m_title->fontMetrics().elidedText(m_text, Qt::ElideRight, m_title->width()));
}

void CellStrip::retranslate()
{
    m_settings->setText(tr("Settings"));
    m_settings->setToolTip(tr("Settings of the component (Ctrl+P)"));
    m_addRight->setToolTip(tr("Add a component at the right"));
    m_addBelow->setToolTip(tr("Add a component below"));
    m_remove->setToolTip(tr("Remove the component"));
}
