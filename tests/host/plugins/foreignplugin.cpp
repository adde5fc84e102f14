#include <QObject>

class ForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Foreign" FILE "foreignplugin.json")
};

#include "foreignplugin.moc"
