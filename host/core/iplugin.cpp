#include "tfcore/iplugin.h"

#include "tfcore/tfobjectpool.h"

IPlugin::IPlugin() = default;

IPlugin::~IPlugin()
{
    while (!m_autoReleased.isEmpty())
        delete m_autoReleased.takeLast().data();
}

bool IPlugin::delayedInitialize()
{
    return false;
}

IPlugin::ShutdownFlag IPlugin::aboutToShutdown()
{
    return SynchronousShutdown;
}

QObject *IPlugin::remoteCommand(const QStringList &, const QString &, const QStringList &)
{
    return nullptr;
}

QVector<QObject *> IPlugin::createTestObjects() const
{
    return {};
}

void IPlugin::addAutoReleasedObject(QObject *object)
{
    if (!object)
        return;
    m_autoReleased.append(object);
    TFObjectPool::instance()->addObject(object);
}
