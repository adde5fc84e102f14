#include "tftranslations.h"

#include "records/tfcategories.h"
#include "tfcore/tfserviceconfig.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

namespace {
QPointer<QTranslator> installed; ///< owned by the application
} // namespace

// A static library's resources are there once they are asked for, which has to stand outside any namespace.
static void initTranslationResources()
{
    Q_INIT_RESOURCE(subjecttranslations);
}

namespace TFTranslations {

bool install()
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!application)
        return false;
    initTranslationResources();
    remove();
    const bool isEnglish = TFServiceConfig::instance()->getCurrentLang() == TFServiceConfig::English;
    const QString file =
        QStringLiteral(":/translations/subjectpage_%1.qm").arg(QLatin1String(isEnglish ? "en" : "zh_CN"));
    auto *catalogue = new QTranslator(application);
    if (!catalogue->load(file) || !QCoreApplication::installTranslator(catalogue)) {
        qCWarning(lcFilter) << "can't read the catalogue" << file;
        delete catalogue;
        return false;
    }
    installed = catalogue;
    return true;
}

void remove()
{
    delete installed;
}

} // namespace TFTranslations
