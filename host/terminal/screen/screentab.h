#pragma once

#include "screenarguments.h"
#include "screenfile.h"
#include "terminaltab.h"

#include <QTimer>

class ComponentCatalog;
class ScreenBar;
class ScreenView;

/// A composite screen in a tab, with its file. What changes in it is saved a moment later. Object name
/// "ScreenTab".
class ScreenTab : public TerminalTab
{
    Q_OBJECT

public:
    /// \a name is that of a new screen; a file that is there tells its own. \a catalog must outlive the tab.
    ScreenTab(const ComponentCatalog *catalog, const QString &path, const QString &name,
              QWidget *parent = nullptr);

    QString path() const { return m_file.path(); }
    QString title() const override { return m_name; }
    QIcon icon() const override;
    ScreenView &view() { return *m_view; }
    ScreenArguments &arguments() { return m_arguments; }

    /// Reads the file and makes the cells.
    void open() override;
    /// Makes the cells anew from what they have told last.
    void reload() override;
    bool mayClose() override;

    void rename(const QString &name);
    /// Writes the file. Returns false, and tells, if that could not be done.
    bool save();
    /// Has the tab go without a save, since its file is to be deleted.
    void forget() { m_isForgotten = true; }

signals:
    /// Something about the file that the user should know; an empty text when all is well again.
    void told(const QString &text);

private:
    void connectParts();
    ScreenState state() const;
    void tellProblems(const QStringList &problems);
    void saveSoon();

    ScreenFile m_file;
    QString m_name;
    ScreenArguments m_arguments;
    ScreenBar *m_bar;
    ScreenView *m_view;
    QTimer m_saveTimer;
    bool m_isChanged = false;
    bool m_isForgotten = false;
};
