#pragma once

#include "screenstore.h"

#include <QMenu>

#include <functional>

/// The menu of composite screens: the commands, then the saved screens. Object name "ScreenMenu".
class ScreenMenu : public QMenu
{
    Q_OBJECT

public:
    /// The keys of the commands work in \a window.
    explicit ScreenMenu(QWidget *window);

    QAction *const newScreen;
    QAction *const save;
    QMenu *const components; ///< filled by its owner when it opens
    QAction *const arguments;
    QAction *const manage;

    /// Asked for the saved screens each time the menu opens.
    void setSource(std::function<QList<ScreenStore::Entry>()> source) { m_source = std::move(source); }
    /// Commands that need a screen in the current tab.
    void setScreenShown(bool shown);
    void retranslate();
    /// Draws the icons anew in the colours of the palette.
    void redraw();

signals:
    /// A saved screen was picked.
    void chosen(const QString &path);

private:
    void listScreens();

    std::function<QList<ScreenStore::Entry>()> m_source;
    QAction *m_listEnd;
};
