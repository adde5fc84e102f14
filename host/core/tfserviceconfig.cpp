#include "tfcore/tfserviceconfig.h"

#include <QHash>
#include <QMutex>
#include <QMutexLocker>

struct TFServiceConfig::Private
{
    mutable QMutex mutex;
    QHash<QString, QUrl> urls;
    int language = Chinese;
};

namespace {
/// Request paths begin with a slash, so the base must not end with one.
QUrl withoutTrailingSlash(QUrl url)
{
    QString path = url.path();
    while (path.endsWith('/'))
        path.chop(1);
    url.setPath(path);
    return url;
}
} // namespace

TFServiceConfig::TFServiceConfig()
    : d(std::make_unique<Private>())
{}

TFServiceConfig::~TFServiceConfig() = default;

TFServiceConfig *TFServiceConfig::instance()
{
    static TFServiceConfig config;
    return &config;
}

QUrl TFServiceConfig::getHttpUrl(const QString &key, const QString &fallback) const
{
    QMutexLocker lock(&d->mutex);
    const auto found = d->urls.constFind(key);
    return found == d->urls.constEnd() ? QUrl(fallback) : *found;
}

int TFServiceConfig::getCurrentLang() const
{
    QMutexLocker lock(&d->mutex);
    return d->language;
}

void TFServiceConfig::setHttpUrl(const QString &key, const QUrl &url)
{
    QMutexLocker lock(&d->mutex);
    if (url.isEmpty())
        d->urls.remove(key);
    else
        d->urls.insert(key, withoutTrailingSlash(url));
}

void TFServiceConfig::setCurrentLang(int language)
{
    QMutexLocker lock(&d->mutex);
    d->language = language;
}
