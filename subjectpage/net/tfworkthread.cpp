#include "tfworkthread.h"

#include "httpservice/tfwxrshttp.h"
#include "records/tfcategories.h"
#include "tfcore/tfappconfig.h"
#include "tfcore/tfrequestlog.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace {
constexpr char Canceled[] = "Operation canceled";

void report(const TFRequestRecord &sent, const TFWXRSHttp::HttpResult &result, qint64 milliseconds)
{
    TFRequestRecord record = sent;
    record.ok = result.ok;
    record.ms = milliseconds;
    if (result.ok)
        record.bytes = result.data.size();
    else
        record.error = QString::fromUtf8(result.data);
    TFRequestLog::instance()->report(record);
}
} // namespace

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
    , m_quitting(std::make_shared<std::atomic_bool>(false))
    , m_carrier(new TFSigConnec)
{
    if (QCoreApplication::instance()) {
        QObject::connect(
            QCoreApplication::instance(), &QCoreApplication::aboutToQuit, m_carrier,
            [quitting = m_quitting] { *quitting = true; }, Qt::DirectConnection);
    }
}

TFWorkRunnable::~TFWorkRunnable()
{
    // Posted behind the queued result, so the result is delivered first.
    m_carrier->deleteLater();
}

void TFWorkRunnable::run()
{
    qCDebug(lcNet) << "request " << m_url << m_body << " end \n";
    const auto headers = TFWXRSHttp::headers(TFAppConfig::instance()->getAppToken(), QString(), QString());
    TFRequestRecord record;
    record.time = QDateTime::currentDateTime();
    record.path = m_url.path();
    record.body = m_body;
    QElapsedTimer timer;
    timer.start();
    const TFWXRSHttp::HttpResult result = *m_quitting ? TFWXRSHttp::HttpResult{false, Canceled, QVariant()}
                                                      : TFWXRSHttp::post(m_url, m_body, headers);
    report(record, result, timer.elapsed());
    qCDebug(lcNet) << "response---" << m_url << m_body << " end \n";
    m_carrier->emitResult(result.ok, result.data);
}
