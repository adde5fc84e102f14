#include "componentcatalog.h"

#include "pluginmanager.h"
#include "tfcore/tffactory.h"
#include "tfcore/tfserviceconfig.h"

#include <QCoreApplication>
#include <QMenu>

ComponentCatalog::ComponentCatalog(const PluginManager *plugins)
    : m_plugins(plugins)
{}

QList<QByteArray> ComponentCatalog::classes() const
{
    return TFFactory<QWidget>::constructors().keys();
}

QString ComponentCatalog::caption(const QByteArray &className) const
{
    const bool english = TFServiceConfig::instance()->getCurrentLang() == TFServiceConfig::English;
    for (const PluginInfo &info : m_plugins->plugins()) {
        const QMap<QString, QString> names = info.components.value(QString::fromUtf8(className));
        const QString name = names.value(english ? "en" : "zh");
        if (info.isAtWork() && !name.isEmpty())
            return name;
    }
    return QString::fromUtf8(className);
}

void ComponentCatalog::fill(QMenu *menu, const std::function<void(const QByteArray &)> &chosen) const
{
    menu->clear();
    const QList<QByteArray> names = classes();
    for (const QByteArray &name : names) {
        QAction *action = menu->addAction(caption(name).replace('&', "&&"));
        QObject::connect(action, &QAction::triggered, menu, [chosen, name] { chosen(name); });
    }
    if (names.isEmpty())
        menu->addAction(QCoreApplication::translate("ComponentCatalog", "No plug-in offers components"))
            ->setEnabled(false);
}
