#include "addressbar.h"

#include "look.h"
#include "mainactions.h"

#include <QActionGroup>
#include <QEvent>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

AddressBar::AddressBar(const MainActions &actions, QAction *panelAction, QWidget *parent)
    : QToolBar(parent)
    , m_line(new QLineEdit)
    , m_lineAction(nullptr)
    , m_skin(new QToolButton)
    , m_panelAction(panelAction)
{
    setObjectName("AddressBar");
    setMovable(false);
    setIconSize({16, 16});
    setContextMenuPolicy(Qt::PreventContextMenu);
    m_line->setObjectName("AddressLine");
    m_skin->setObjectName("SkinButton");
    m_skin->setPopupMode(QToolButton::InstantPopup);
    auto *skinMenu = new QMenu(m_skin);
    connect(skinMenu, &QMenu::aboutToShow, skinMenu, [skinMenu, skins = actions.skins] {
        skinMenu->clear();
        skinMenu->addActions(skins->actions());
    });
    m_skin->setMenu(skinMenu);

    addAction(actions.home);
    addAction(actions.reload);
    addAction(actions.newTab);
    m_lineAction = addWidget(m_line);
    addWidget(m_skin);
    addAction(actions.service);
    addAction(panelAction);
    connect(m_line, &QLineEdit::returnPressed, this, [this] {
        m_line->setModified(false);
        emit entered(m_line->text().trimmed());
    });
    retranslate();
}

void AddressBar::setUrl(const QUrl &url)
{
    if (m_line->hasFocus() && m_line->isModified())
        return;
    m_line->setText(url.toString());
    m_line->setCursorPosition(0);
}

void AddressBar::focusAddress()
{
    m_line->setFocus(Qt::ShortcutFocusReason);
    m_line->selectAll();
}

void AddressBar::addScreens(QMenu *menu)
{
    m_screens = new QToolButton;
    m_screens->setObjectName("ScreensButton");
    m_screens->setPopupMode(QToolButton::InstantPopup);
    m_screens->setMenu(menu);
    insertWidget(m_lineAction, m_screens);
    retranslate();
}

void AddressBar::redraw()
{
    m_skin->setIcon(Look::icon("skin"));
    if (m_screens)
        m_screens->setIcon(Look::icon("screen"));
    m_panelAction->setIcon(Look::icon("activity"));
}

void AddressBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QToolBar::changeEvent(event);
}

void AddressBar::retranslate()
{
    setWindowTitle(tr("Address"));
    m_line->setPlaceholderText(tr("Address of a page, view://..."));
    m_skin->setToolTip(tr("Skin"));
    if (m_screens)
        m_screens->setToolTip(tr("Composite screens"));
}
