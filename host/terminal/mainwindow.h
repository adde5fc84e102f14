#pragma once

#include <QMainWindow>
#include <QUrl>

class ActivityPanel;
class AddressBar;
class MainActions;
class NoticeBar;
class PageFactory;
class PageTabs;
class QMenu;
class ScreenMenu;
class TopicMenu;

/// The terminal's window: menus, address line, tabs, panel. It builds and connects; what the commands do
/// beyond the window is its owner's matter. Object name "TerminalWindow".
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const PageFactory *factory, QWidget *parent = nullptr);

    MainActions &actions() { return *m_actions; }
    PageTabs &tabs() { return *m_tabs; }
    NoticeBar &notice() { return *m_notice; }
    ActivityPanel &activity() { return *m_activity; }
    TopicMenu &topics() { return *m_topics; }
    ScreenMenu &screens() { return *m_screens; }

    /// Opens the home page in a new tab.
    void openHome();
    /// Leaves nothing but the page on top, off the screen: for pictures of pages.
    void showPageAlone();
    /// Draws what depends on the skin.
    void redraw();

    /// Opens a page address in a new tab and hands anything else to the desktop. Called by name by the pages.
    Q_INVOKABLE void openStringUrl(QString url);

signals:
    void closing();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeMenus();
    void connectParts();
    void retranslate();
    void showAbout();
    void updateTitle();

    const PageFactory *m_factory;
    MainActions *m_actions;
    PageTabs *m_tabs;
    NoticeBar *m_notice;
    ActivityPanel *m_activity;
    AddressBar *m_address;
    QMenu *m_pageMenu;
    TopicMenu *m_topics;
    ScreenMenu *m_screens;
    QMenu *m_viewMenu;
    QMenu *m_skinMenu;
    QMenu *m_languageMenu;
    QMenu *m_helpMenu;
    QString m_pageTitle;
};
