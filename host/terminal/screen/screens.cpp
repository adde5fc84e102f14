#include "screens.h"

#include "componentcatalog.h"
#include "mainwindow.h"
#include "noticebar.h"
#include "pagetabs.h"
#include "screenlistdialog.h"
#include "screenmenu.h"
#include "screentab.h"
#include "screenview.h"
#include "settings.h"

#include <QAction>
#include <QFileInfo>

#include <algorithm>

namespace {
const char Folder[] = "/screens";

QString freeName(const QList<ScreenStore::Entry> &entries)
{
    for (int i = 1;; ++i) {
        const QString name = Screens::tr("Screen %1").arg(i);
        const bool taken = std::any_of(entries.begin(), entries.end(),
                                       [&](const ScreenStore::Entry &entry) { return entry.name == name; });
        if (!taken)
            return name;
    }
}
} // namespace

Screens::Screens(const ComponentCatalog *catalog, MainWindow *window, Settings *settings, QObject *parent)
    : QObject(parent)
    , m_catalog(catalog)
    , m_window(window)
    , m_settings(settings)
    , m_store(settings->folder() + Folder)
{
    connectMenu();
}

void Screens::connectMenu()
{
    ScreenMenu &menu = m_window->screens();
    menu.setSource([this] { return m_store.list(); });
    connect(menu.newScreen, &QAction::triggered, this, &Screens::create);
    connect(&menu, &ScreenMenu::chosen, this, &Screens::open);
    connect(menu.manage, &QAction::triggered, this, &Screens::manage);
    connect(menu.save, &QAction::triggered, this, [this] {
        if (ScreenTab *tab = current())
            tab->save();
    });
    connect(menu.components, &QMenu::aboutToShow, this, [this, components = menu.components] {
        m_catalog->fill(components, [this](const QByteArray &name) {
            if (ScreenTab *tab = current())
                tab->view().add(name);
        });
    });
    connect(menu.arguments, &QAction::triggered, this, [this] {
        if (ScreenTab *tab = current())
            tab->arguments().edit();
    });
    connect(&m_window->tabs(), &PageTabs::currentChanged, this,
            [this] { m_window->screens().setScreenShown(current() != nullptr); });
}

ScreenTab *Screens::create()
{
    auto *tab = new ScreenTab(m_catalog, m_store.freePath(openPaths()), freeName(m_store.list()));
    add(tab);
    tab->save();
    return tab;
}

ScreenTab *Screens::open(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    ScreenTab *tab = find(absolute);
    if (tab) {
        m_window->tabs().show(tab);
        return tab;
    }
    tab = new ScreenTab(m_catalog, absolute, QString());
    add(tab);
    return tab;
}

void Screens::add(ScreenTab *tab)
{
    connect(tab, &ScreenTab::told, this, &Screens::tell);
    m_window->tabs().add(tab);
}

void Screens::openLast()
{
    for (const QString &path : m_settings->openScreens()) {
        if (QFileInfo::exists(path))
            open(path);
    }
}

void Screens::remember()
{
    m_settings->setOpenScreens(openPaths());
}

QStringList Screens::openPaths() const
{
    QStringList paths;
    for (TerminalTab *tab : m_window->tabs().all()) {
        if (auto *screen = qobject_cast<ScreenTab *>(tab))
            paths.append(screen->path());
    }
    return paths;
}

void Screens::manage()
{
    ScreenListDialog dialog(m_window);
    const auto list = [this, &dialog] { dialog.setEntries(m_store.list()); };
    connect(&dialog, &ScreenListDialog::openRequested, this, &Screens::open);
    connect(&dialog, &ScreenListDialog::renameRequested, this, &Screens::rename);
    connect(&dialog, &ScreenListDialog::renameRequested, &dialog, list);
    connect(&dialog, &ScreenListDialog::deleteRequested, this, &Screens::remove);
    connect(&dialog, &ScreenListDialog::deleteRequested, &dialog, list);
    list();
    dialog.exec();
}

void Screens::rename(const QString &path, const QString &name)
{
    if (ScreenTab *tab = find(path))
        tab->rename(name);
    else
        tell(m_store.rename(path, name));
}

void Screens::remove(const QString &path)
{
    if (ScreenTab *tab = find(path)) {
        tab->forget();
        m_window->tabs().close(tab);
    }
    tell(m_store.remove(path));
}

ScreenTab *Screens::find(const QString &path) const
{
    for (TerminalTab *tab : m_window->tabs().all()) {
        auto *screen = qobject_cast<ScreenTab *>(tab);
        if (screen && screen->path() == path)
            return screen;
    }
    return nullptr;
}

ScreenTab *Screens::current() const
{
    return qobject_cast<ScreenTab *>(m_window->tabs().current());
}

void Screens::tell(const QString &text)
{
    m_window->notice().tell(NoticeBar::Screen, text);
}
