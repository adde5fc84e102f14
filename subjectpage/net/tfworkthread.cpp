#include "tfworkthread.h"

#include "httpservice/tfwxrshttp.h"
#include "records/tfcategories.h"
#include "tfcore/tfappconfig.h"

void TFSigConnec::emitResult(bool isOk, const QByteArray &data)
{
    qCDebug(lcNet) << "emitResult:" << isOk << "dataSize:" << data.size();
    emit signalResult(isOk, data);
}

TFWorkRunnable::TFWorkRunnable(const TFUc::TFRequestContent &content)
    : m_url(content.url)
    , m_body(content.body)
    , m_spare(content.spare)
    , m_headers(content.headers)
    , m_startTime(QTime::currentTime())
    , m_carrier(new TFSigConnec)
{}

TFWorkRunnable::~TFWorkRunnable()
{
    // Posted behind the queued result, so the result is delivered first.
    m_carrier->deleteLater();
}

void TFWorkRunnable::run()
{
    qCDebug(lcNet) << "request " << m_url << m_body << " end \n";
    const auto headers = TFWXRSHttp::headers(TFAppConfig::instance()->getAppToken(), QString(), QString());
    const TFWXRSHttp::HttpResult result = TFWXRSHttp::post(m_url, m_body, headers);
    qCDebug(lcNet) << "response---" << m_url << m_body << " end \n";
    m_carrier->emitResult(result.ok, result.data);
}
