#include "tfsubjectpageplugin.h"

#include <new>

#include "tfframesubjectzhp.h"
#include "tfsubjectpage.h"
#include "tftranslations.h"

namespace {
void *constructPage(void *where, const void *)
{
    return new (where) TFSubjectPage;
}

void destructPage(void *page)
{
    static_cast<TFSubjectPage *>(page)->~TFSubjectPage();
}

/// Registered by hand, since a widget can't be copied.
int registerPage()
{
    return QMetaType::registerNormalizedType(
        "TFSubjectPage", destructPage, constructPage, int(sizeof(TFSubjectPage)),
        QMetaType::NeedsConstruction | QMetaType::NeedsDestruction, nullptr);
}

/// Components are there for the host from the loading of the library until it goes.
struct Components
{
    Components() { TFFrameSubjectZHP::registerComponents(); }
    ~Components() { TFFrameSubjectZHP::unregisterComponents(); }
};
const Components components;
} // namespace

bool TFSubjectPagePlugin::initialize(const QStringList &, QString *)
{
    TFTranslations::install();
    auto *page = new QObject;
    page->setObjectName(QStringLiteral("SubjectPage"));
    page->setProperty("id", QStringLiteral("TFApp.SUBJECT"));
    page->setProperty("metaId", registerPage());
    addAutoReleasedObject(page);
    return true;
}

void TFSubjectPagePlugin::extensionsInitialized()
{}
