#pragma once

#include <QStackedWidget>
#include <QUrl>

class PageFactory;
class QLabel;
class QTabWidget;
class TerminalTab;

/// The open pages and screens, one a tab, or a line of text while there is none. The tab widget has the
/// object name "PageTabs", the line "EmptyHint".
class PageTabs : public QStackedWidget
{
    Q_OBJECT

public:
    explicit PageTabs(const PageFactory *factory, QWidget *parent = nullptr);

    void open(const QUrl &url);
    /// Puts \a tab at the end, shows it and opens it.
    void add(TerminalTab *tab);
    void show(TerminalTab *tab);
    /// Closes \a tab unless it would rather stay.
    void close(TerminalTab *tab);
    TerminalTab *current() const;
    QList<TerminalTab *> all() const;
    int count() const;
    /// Asks each tab whether it may go.
    bool mayClose();
    /// What is said while no page is open.
    void setHint(const QString &text);
    QString hint() const;
    /// Leaves the whole room to the page.
    void hideTabBar();

public slots:
    void closeCurrent();
    void closeAll();
    void reloadCurrent();
    void reloadAll();
    /// Goes to the next (\a step 1) or previous (-1) tab, around the ends.
    void step(int step);

signals:
    void currentChanged(const QUrl &url, const QString &title);
    void openRequested(const QString &url);

private:
    TerminalTab *at(int index) const;
    void listenTo(TerminalTab *tab);
    void tellCurrent();
    void updateShown();

    const PageFactory *m_factory;
    QTabWidget *m_tabs;
    QLabel *m_hint;
};
