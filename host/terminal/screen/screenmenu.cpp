#include "screenmenu.h"

#include "look.h"

#include <QAction>

namespace {
/// More are found under "Manage screens".
constexpr int MaxListed = 20;
const char ListedProperty[] = "listedScreen";
} // namespace

ScreenMenu::ScreenMenu(QWidget *window)
    : QMenu(window)
    , newScreen(new QAction(this))
    , save(new QAction(this))
    , components(new QMenu(this))
    , arguments(new QAction(this))
    , manage(new QAction(this))
{
    setObjectName("ScreenMenu");
    newScreen->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T));
    save->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    window->addActions({newScreen, save});
    addActions({newScreen, save});
    addMenu(components);
    addAction(arguments);
    addSeparator();
    m_listEnd = addSeparator();
    addAction(manage);
    connect(this, &QMenu::aboutToShow, this, &ScreenMenu::listScreens);
    setScreenShown(false);
    retranslate();
}

void ScreenMenu::setScreenShown(bool shown)
{
    save->setEnabled(shown);
    components->setEnabled(shown);
    arguments->setEnabled(shown);
}

void ScreenMenu::listScreens()
{
    for (QAction *action : actions()) {
        if (action->property(ListedProperty).toBool())
            delete action;
    }
    const QList<ScreenStore::Entry> entries = m_source ? m_source() : QList<ScreenStore::Entry>();
    for (const ScreenStore::Entry &entry : entries.mid(0, MaxListed)) {
        auto *action = new QAction(QString(entry.name).replace('&', "&&"), this);
        action->setProperty(ListedProperty, true);
        insertAction(m_listEnd, action);
        connect(action, &QAction::triggered, this, [this, path = entry.path] { emit chosen(path); });
    }
    manage->setEnabled(!entries.isEmpty());
}

void ScreenMenu::retranslate()
{
    setTitle(tr("&Composite screens"));
    newScreen->setText(tr("&New screen"));
    save->setText(tr("&Save screen"));
    components->setTitle(tr("&Add component"));
    arguments->setText(tr("&Global arguments..."));
    manage->setText(tr("&Manage screens..."));
}

void ScreenMenu::redraw()
{
    newScreen->setIcon(Look::icon("new-tab"));
    arguments->setIcon(Look::icon("settings"));
}
