#include "pagefactory.h"

#include "pluginmanager.h"
#include "tfcore/itfabstractpage.h"
#include "tfcore/tfobjectpool.h"

#include <QMetaType>
#include <QVariant>

#include <utility>

namespace {
const char PageScheme[] = "view";
const char PoolIdPrefix[] = "TFApp.";
const char MetaIdProperty[] = "metaId";

bool sameText(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// Not every page class announces its interfaces to the toolkit.
ITFAbstractPage *interfaceOf(QWidget *widget)
{
    auto *page = qobject_cast<ITFAbstractPage *>(widget);
    return page ? page : dynamic_cast<ITFAbstractPage *>(widget);
}
} // namespace

PageFactory::PageFactory(const PluginManager *plugins, QObject *parent)
    : QObject(parent)
    , m_plugins(plugins)
{}

QUrl PageFactory::homeUrl() const
{
    for (const PluginInfo &info : m_plugins->plugins()) {
        if (info.isAtWork() && !info.url.isEmpty())
            return info.url;
    }
    return {};
}

bool PageFactory::isPageUrl(const QUrl &url)
{
    return sameText(url.scheme(), PageScheme);
}

/// A plug-in serves the addresses that share scheme and host with its home page, and registers its page type
/// under its category. A host that no plug-in knows goes to the first plug-in of the scheme, which knows
/// best what it accepts.
QString PageFactory::poolIdFor(const QUrl &url) const
{
    QString id;
    for (const PluginInfo &info : m_plugins->plugins()) {
        if (!info.isAtWork() || !sameText(info.url.scheme(), url.scheme()))
            continue;
        const QString own = PoolIdPrefix + info.category.toUpper();
        if (sameText(info.url.host(), url.host()))
            return own;
        if (id.isEmpty())
            id = own;
    }
    return id;
}

MadePage PageFactory::make(const QUrl &url, QWidget *parent) const
{
    MadePage made;
    const QString id = poolIdFor(url);
    const QObject *registration = id.isEmpty() ? nullptr : TFObjectPool::instance()->find(id);
    if (!registration) {
        made.error = tr("No plug-in shows pages of the kind %1://%2").arg(url.scheme(), url.host());
        return made;
    }
    const int type = registration->property(MetaIdProperty).toInt();
    if (!QMetaType::isRegistered(type)) {
        made.error = tr("The plug-in registered no page class under %1").arg(id);
        return made;
    }
    // A page class has the widget as its first base.
    made.widget = static_cast<QWidget *>(QMetaType::create(type));
    made.page = interfaceOf(made.widget);
    if (!made.page) {
        delete std::exchange(made.widget, nullptr);
        made.error = tr("%1 is no page").arg(QMetaType::typeName(type));
        return made;
    }
    made.widget->setParent(parent);
    return made;
}
