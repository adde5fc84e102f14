#include "tfcore/tfappconfig.h"

#include <QMutex>
#include <QMutexLocker>

struct TFAppConfig::Private
{
    mutable QMutex mutex;
    QString token;
    QString productId;
    USERINFO user;
};

TFAppConfig::TFAppConfig()
    : d(std::make_unique<Private>())
{}

TFAppConfig::~TFAppConfig() = default;

TFAppConfig *TFAppConfig::instance()
{
    static TFAppConfig config;
    return &config;
}

QString TFAppConfig::getAppToken() const
{
    QMutexLocker lock(&d->mutex);
    return d->token;
}

QString TFAppConfig::getProuctId() const
{
    QMutexLocker lock(&d->mutex);
    return d->productId;
}

USERINFO TFAppConfig::getUserInfo() const
{
    QMutexLocker lock(&d->mutex);
    return d->user;
}

void TFAppConfig::setAppToken(const QString &token)
{
    QMutexLocker lock(&d->mutex);
    d->token = token;
}

void TFAppConfig::setProuctId(const QString &productId)
{
    QMutexLocker lock(&d->mutex);
    d->productId = productId;
}

void TFAppConfig::setUserInfo(const USERINFO &user)
{
    QMutexLocker lock(&d->mutex);
    d->user = user;
}
