#include "testhost.h"

#include "pageservice.h"
#include "tfcore/tfappconfig.h"
#include "tfcore/tfcore.h"
#include "tfcore/tfserviceconfig.h"

#include <QDir>
#include <QFile>
#include <QSettings>

namespace {
void makeEmptyFile(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("can't write %s", qPrintable(path));
}
} // namespace

TestHost::TestHost(const TestService *service)
{
    const QString skins = m_folder.filePath(QStringLiteral("skins"));
    for (const char *skin : {"white", "black"}) {
        for (const char *sheet : {"subject.css", "pagination.css"})
            makeEmptyFile(
                QStringLiteral("%1/%2/subject/%3").arg(skins, QLatin1String(skin), QLatin1String(sheet)));
    }
    TFCore::instance()->setSkinRoot(skins);
    TFCore::instance()->setCurrentSkin(QStringLiteral("white"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       m_folder.filePath(QStringLiteral("settings")));
    TFAppConfig::instance()->setAppToken(QStringLiteral("token"));
    TFAppConfig::instance()->setProuctId(QStringLiteral("product"));
    TFAppConfig::instance()->setUserInfo({QStringLiteral("tester"), QString()});
    if (service)
        TFServiceConfig::instance()->setHttpUrl(QStringLiteral("servercfg.ini:Subject"), service->url());
}

TestHost::~TestHost() = default;
