#pragma once

#include <QStackedWidget>
#include <QUrl>

class PageFactory;
class PageTab;
class QLabel;
class QTabWidget;

/// The open pages, one a tab, or a line of text while there is none. The tab widget has the object name
/// "PageTabs", the line "EmptyHint".
class PageTabs : public QStackedWidget
{
    Q_OBJECT

public:
    explicit PageTabs(const PageFactory *factory, QWidget *parent = nullptr);

    void open(const QUrl &url);
    PageTab *current() const;
    int count() const;
    /// What is said while no page is open.
    void setHint(const QString &text);
    QString hint() const;

public slots:
    void closeCurrent();
    void reloadCurrent();
    void reloadAll();
    /// Goes to the next (\a step 1) or previous (-1) tab, around the ends.
    void step(int step);

signals:
    void currentChanged(const QUrl &url, const QString &title);
    void openRequested(const QString &url);

private:
    void close(int index);
    void listenTo(PageTab *tab);
    void tellCurrent();
    void updateShown();

    const PageFactory *m_factory;
    QTabWidget *m_tabs;
    QLabel *m_hint;
};
