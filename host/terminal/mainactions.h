#pragma once

#include <QObject>

class QAction;
class QActionGroup;

/// All commands of the main window with their texts, keys and icons.
class MainActions : public QObject
{
    Q_OBJECT

public:
    /// The actions belong to \a window, so that their keys work everywhere in it.
    explicit MainActions(QWidget *window);

    QAction *const newTab;
    QAction *const closeTab;
    QAction *const nextTab;
    QAction *const previousTab;
    QAction *const home;
    QAction *const reload;
    QAction *const goToAddress;
    QAction *const service;
    QAction *const about;
    QAction *const quit;
    QActionGroup *const skins;
    QActionGroup *const languages;

    /// Makes one checkable action a skin; the data of each is the name.
    void setSkins(const QStringList &names, const QString &current);
    void setLanguage(const QString &code);
    void retranslate();
    /// Draws the icons anew in the colours of the palette.
    void redraw();

signals:
    void skinChosen(const QString &skin);
    void languageChosen(const QString &code);
};
