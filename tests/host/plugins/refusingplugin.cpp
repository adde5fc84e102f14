#include "tfcore/iplugin.h"

class RefusingPlugin : public IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TF_APP_PLUGIN_IID FILE "refusingplugin.json")

public:
    bool initialize(const QStringList &, QString *errorString) override
    {
        *errorString = "the licence of the sun has run out";
        return false;
    }
    void extensionsInitialized() override {}
};

#include "refusingplugin.moc"
