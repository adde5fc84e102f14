#include "tfdm.h"

#include "tfcore/tfappconfig.h"
#include "tfcore/tfserviceconfig.h"

const QString TFDm::ServiceKey = QStringLiteral("servercfg.ini:Subject");

TFDm::TFDm(QObject *owner)
    : m_owner(owner)
{
    TFUc::setBaseUrl(TFServiceConfig::instance()->getHttpUrl(ServiceKey, QString()));
    TFUc::setUserId(TFAppConfig::instance()->getUserInfo().userId);
    TFUc::setProductId(TFAppConfig::instance()->getProuctId());
}
