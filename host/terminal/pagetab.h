#pragma once

#include "terminaltab.h"

#include <QPointer>

class ITFAbstractPage;
class ITFInspection;
class PageFactory;
class QLabel;
class QVBoxLayout;

/// One tab: a page, or the reason why there is none. The object name is "PageTab", that of the reason
/// "PageFault".
class PageTab : public TerminalTab
{
    Q_OBJECT

public:
    PageTab(const PageFactory *factory, const QUrl &url, QWidget *parent = nullptr);

    QUrl url() const override { return m_url; }
    /// Title that the page gave itself, or the address until it has one.
    QString title() const override;
    QIcon icon() const override { return m_icon; }

    /// Makes the page of url().
    void open() override;
    void reload() override;
    ITFInspection *inspection() const override;

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
