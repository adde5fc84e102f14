#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

class PluginManager;
class QMenu;

/// The components that the plug-ins offer for composite screens: what the factory of widgets can make, under
/// the names that the plug-ins' metadata give them.
class ComponentCatalog
{
public:
    explicit ComponentCatalog(const PluginManager *plugins);

    /// In alphabetical order.
    QList<QByteArray> classes() const;
    /// Name for users in the current language; the class name where no plug-in gives one.
    QString caption(const QByteArray &className) const;
    /// Refills \a menu with an action a component; \a chosen gets the class name.
    void fill(QMenu *menu, const std::function<void(const QByteArray &className)> &chosen) const;

private:
    const PluginManager *m_plugins;
};
