#include "tfcore/iplugin.h"
#include "tfcore/tfobjectpool.h"

/// Needs Good, and finds its registration in the pool while it starts.
class DependentPlugin : public IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TF_APP_PLUGIN_IID FILE "dependentplugin.json")

public:
    bool initialize(const QStringList &, QString *errorString) override
    {
        *errorString = "started before Good";
        return TFObjectPool::instance()->find("TFApp.SAMPLE") != nullptr;
    }
    void extensionsInitialized() override {}
};

#include "dependentplugin.moc"
