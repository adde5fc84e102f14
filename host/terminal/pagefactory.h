#pragma once

#include <QObject>
#include <QUrl>
#include <QWidget>

class ITFAbstractPage;
class PluginManager;

/// A page that was made for an address, or why there is none.
struct MadePage
{
    QWidget *widget = nullptr; ///< owned by the caller
    ITFAbstractPage *page = nullptr;
    QString error; ///< empty if the page was made
};

/// Makes pages for page addresses from what the plug-ins registered in the object pool.
class PageFactory : public QObject
{
    Q_OBJECT

public:
    explicit PageFactory(const PluginManager *plugins, QObject *parent = nullptr);

    /// Home page of the first plug-in that has one, or an empty address.
    QUrl homeUrl() const;
    /// Whether \a url is a page address (scheme "view") and no matter of the desktop's.
    static bool isPageUrl(const QUrl &url);

    /// Makes the page, not yet initialised.
    MadePage make(const QUrl &url, QWidget *parent) const;

private:
    QString poolIdFor(const QUrl &url) const;

    const PluginManager *m_plugins;
};
