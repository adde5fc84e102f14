#include "mainactions.h"

#include "languages.h"
#include "look.h"

#include <QAction>
#include <QActionGroup>
#include <QKeySequence>
#include <QWidget>

namespace {
QAction *make(QWidget *window, const QList<QKeySequence> &keys)
{
    auto *action = new QAction(window);
    action->setShortcuts(keys);
    window->addAction(action);
    return action;
}
} // namespace

MainActions::MainActions(QWidget *window)
    : QObject(window)
    , newTab(make(window, {QKeySequence(Qt::CTRL | Qt::Key_T)}))
    , closeTab(make(window, {QKeySequence(Qt::CTRL | Qt::Key_W)}))
    , nextTab(make(window, {QKeySequence(Qt::CTRL | Qt::Key_Tab), QKeySequence(Qt::CTRL | Qt::Key_PageDown)}))
    , previousTab(make(window, {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
                                QKeySequence(Qt::CTRL | Qt::Key_PageUp)}))
    , home(make(window, {QKeySequence(Qt::ALT | Qt::Key_Home)}))
    , reload(make(window, {QKeySequence(Qt::Key_F5), QKeySequence(Qt::CTRL | Qt::Key_R)}))
    , goToAddress(make(window, {QKeySequence(Qt::CTRL | Qt::Key_L)}))
    , service(make(window, {}))
    , about(make(window, {}))
    , quit(make(window, {QKeySequence(Qt::CTRL | Qt::Key_Q)}))
    , skins(new QActionGroup(this))
    , languages(new QActionGroup(this))
{
    connect(skins, &QActionGroup::triggered, this,
            [this](QAction *action) { emit skinChosen(action->data().toString()); });
    connect(languages, &QActionGroup::triggered, this,
            [this](QAction *action) { emit languageChosen(action->data().toString()); });
    for (const QString &code : Languages::codes()) {
        QAction *action = languages->addAction(Languages::nativeName(code));
        action->setCheckable(true);
        action->setData(code);
    }
    retranslate();
}

void MainActions::setSkins(const QStringList &names, const QString &current)
{
    qDeleteAll(skins->actions());
    for (const QString &name : names) {
        QAction *action = skins->addAction(name);
        action->setCheckable(true);
        action->setChecked(name == current);
        action->setData(name);
    }
    retranslate();
}

void MainActions::setLanguage(const QString &code)
{
    for (QAction *action : languages->actions())
        action->setChecked(action->data().toString() == code);
}

void MainActions::retranslate()
{
    newTab->setText(tr("&New tab"));
    closeTab->setText(tr("&Close tab"));
    nextTab->setText(tr("Ne&xt tab"));
    previousTab->setText(tr("&Previous tab"));
    home->setText(tr("&Home page"));
    reload->setText(tr("&Open anew"));
    goToAddress->setText(tr("Go to &address"));
    service->setText(tr("&Data service..."));
    about->setText(tr("&About"));
    quit->setText(tr("&Quit"));
    for (QAction *action : skins->actions()) {
        const QString name = action->data().toString();
        const QString text = name == "white"   ? tr("White")
                             : name == "black" ? tr("Black")
                             : name == "mid"   ? tr("Twilight")
                                               : name;
        action->setText(text);
    }
}

void MainActions::redraw()
{
    newTab->setIcon(Look::icon("new-tab"));
    home->setIcon(Look::icon("home"));
    reload->setIcon(Look::icon("reload"));
    service->setIcon(Look::icon("service"));
}
