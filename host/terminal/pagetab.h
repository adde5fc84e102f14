#pragma once

#include <QIcon>
#include <QPointer>
#include <QUrl>
#include <QWidget>

class ITFAbstractPage;
class PageFactory;
class QLabel;
class QVBoxLayout;

/// One tab: a page, or the reason why there is none. The object name is "PageTab", that of the reason
/// "PageFault".
class PageTab : public QWidget
{
    Q_OBJECT

public:
    PageTab(const PageFactory *factory, const QUrl &url, QWidget *parent = nullptr);

    QUrl url() const { return m_url; }
    /// Title that the page gave itself, or the address until it has one.
    QString title() const;
    QIcon icon() const { return m_icon; }

    /// Makes the page of url(). To be called once the tab is in place, since a page tells its title and icon
    /// while it starts.
    void open();
    /// Makes the page anew from its address.
    void reload();

signals:
    void titleChanged(const QString &title);
    void iconChanged(const QIcon &icon);
    void urlChanged(const QUrl &url);
    /// The page wants another page opened.
    void openRequested(const QString &url);

private slots:
    void setPageTitle(const QString &title);
    void setPageIcon(const QIcon &icon);
    void setPageUrl(const QUrl &url);
    void setPageUrl(const QString &url);
    void openUrl(const QUrl &url);
    void openUrl(const QString &url);

private:
    void listenTo(QWidget *widget, ITFAbstractPage *page);
    void connectSignal(QWidget *widget, const QString &signature, const QByteArray &slotName);

    const PageFactory *m_factory;
    QUrl m_url;
    QString m_title;
    QIcon m_icon;
    QVBoxLayout *m_layout;
    QPointer<QWidget> m_page;
};
