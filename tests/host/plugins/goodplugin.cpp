#include "testpage.h"
#include "tfcore/iplugin.h"

#include <QMetaType>

namespace {
void destruct(void *page)
{
    static_cast<TestPage *>(page)->~TestPage();
}

void *construct(void *where, const void *)
{
    return new (where) TestPage;
}
} // namespace

class GoodPlugin : public IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TF_APP_PLUGIN_IID FILE "goodplugin.json")

public:
    bool initialize(const QStringList &arguments, QString *) override
    {
        auto *registration = new QObject;
        registration->setProperty("id", "TFApp.SAMPLE");
        registration->setProperty("arguments", arguments);
        registration->setProperty("metaId",
                                  QMetaType::registerNormalizedType(
                                      "TestPage", destruct, construct, int(sizeof(TestPage)),
                                      QMetaType::NeedsConstruction | QMetaType::NeedsDestruction, nullptr));
        addAutoReleasedObject(registration);
        return true;
    }
    void extensionsInitialized() override {}
};

#include "goodplugin.moc"
