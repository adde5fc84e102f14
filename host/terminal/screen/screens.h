#pragma once

#include "screenstore.h"

#include <QObject>
#include <QStringList>

class ComponentCatalog;
class MainWindow;
class ScreenListDialog;
class ScreenTab;
class Settings;
class TerminalTab;

/// The composite screens of the terminal: makes, opens, lists, renames and deletes them, and brings back at
/// the start those that were open at the end.
class Screens : public QObject
{
    Q_OBJECT

public:
    /// All three must outlive the object; \a window and the settings' folder are ready.
    Screens(const ComponentCatalog *catalog, MainWindow *window, Settings *settings,
            QObject *parent = nullptr);

    /// Makes a screen and shows it.
    ScreenTab *create();
    /// Shows the screen of the file \a path, in the tab that it has already or in a new one.
    ScreenTab *open(const QString &path);
    void openLast();
    /// Takes down which screens are open, for openLast().
    void remember();
    /// Shows the list of saved screens.
    void manage();

private:
    void connectMenu();
    void add(ScreenTab *tab);
    ScreenTab *find(const QString &path) const;
    QStringList openPaths() const;
    ScreenTab *current() const;
    void rename(const QString &path, const QString &name);
    void remove(const QString &path);
    void tell(const QString &text);

    const ComponentCatalog *m_catalog;
    MainWindow *m_window;
    Settings *m_settings;
    ScreenStore m_store;
};
