#include "tfcore/iplugin.h"

/// Claims the interface, and is of another class.
class StrangePlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TF_APP_PLUGIN_IID FILE "strangeplugin.json")
};

#include "strangeplugin.moc"
