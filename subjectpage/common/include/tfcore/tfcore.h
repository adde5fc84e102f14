#pragma once

#include "itfskin.h"

#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>

#include <memory>

/// The host's core singleton: skins, configuration values and the main window. User-interface thread only.
class TFCORE_EXPORT TFCore : public QObject
{
    Q_OBJECT

public:
    static TFCore *instance();

    /// Gives \a view the style sheet file \a fileName (relative to the skin's folder) now and at each change
    /// of skin, for as long as the widget behind it lives. A file that is missing gives an empty sheet and a
    /// warning; without a skin root every sheet is empty and nothing is said. Relative url(...) of the sheet
    /// are resolved beside the file, then in the skin's folder.
    void addStyle2View(ITFSkin *view, const QString &fileName);

    /// Full path of \a fileName in the folder of the current skin.
    QString getCurrentSkinPath(const QString &fileName) const;

    /// "white", "black" or "mid".
    QString getCurrentSkinId() const;

    /// The window that takes "openStringUrl(QString)" by name, or null when there is none.
    QMainWindow *mainWindow() const;

    /// Value of a key of the form "file.ini:Section/key" from the first of the host's configuration folders
    /// that has it. Texts are UTF-8; an unquoted text with commas comes back whole, without blanks around
    /// them.
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;

    // What follows is for the host itself.

    /// Folder that holds one folder a skin. Views already registered keep their sheets until
    /// setCurrentSkin().
    void setSkinRoot(const QString &folder);
    /// Folders of the INI files that value() reads: the user's own first, then what was installed.
    void setConfigFolders(const QStringList &folders);
    /// The user's own folder.
    QString configFolder() const;
    QStringList skins() const;
    /// Changes the skin, hands all registered views their sheets, then emits signalSkinChanged(). An unknown
    /// name is refused with a warning and false.
    bool setCurrentSkin(const QString &skinId);
    /// Text of a style sheet of the current skin, with what addStyle2View() tells of missing files and
    /// url(...).
    QString styleSheet(const QString &fileName) const;
    void setMainWindow(QMainWindow *window);

signals:
    void signalSkinChanged(QString skinId);

private:
    TFCore();
    ~TFCore() override;

    struct Private;
    std::unique_ptr<Private> d;
};
