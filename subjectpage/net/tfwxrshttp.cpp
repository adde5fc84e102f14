#include "httpservice/tfwxrshttp.h"

#include "records/tfcategories.h"
#include "tfcore/tfappconfig.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QNetworkSession>
#include <QSharedPointer>
#include <QSslConfiguration>
#include <QSslError>
#include <QThread>

#include <mutex>

namespace {
/// The toolkit registers the types of its network classes at their first use, and not safely: two first
/// requests at once would register a conversion twice.
void registerNetworkTypes()
{
    static std::once_flag once;
    std::call_once(once, [] {
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        qRegisterMetaType<QSharedPointer<QNetworkSession>>();
        QT_WARNING_POP
        qRegisterMetaType<QList<QSslError>>();
        qRegisterMetaType<QList<QPair<QByteArray, QByteArray>>>();
        QNetworkAccessManager registersTheRest;
    });
}

/// The proxies of the application. Where there is none for an address, it says "as the socket finds it" in
/// place of "none", which leads to the same address: for "none" the toolkit opens the socket without a buffer
/// and reads the header of the reply a byte a system call.
class ApplicationProxies : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override
    {
        const QList<QNetworkProxy> none{QNetworkProxy(QNetworkProxy::NoProxy)};
        const QList<QNetworkProxy> proxies = proxyForQuery(query);
        const QNetworkProxyQuery bySocket(query.peerHostName(), query.peerPort());
        if (proxies == none && proxyForQuery(bySocket) == none)
            return {QNetworkProxy(QNetworkProxy::DefaultProxy)};
        return proxies;
    }
};

constexpr char TokenHeader[] = "kvt-token";
constexpr char FormatHeader[] = "kvt-format";
constexpr char LanguageHeader[] = "kvt-language";
constexpr char UserHeader[] = "userId";
constexpr char ProductHeader[] = "prodId";
constexpr char JsonContent[] = "application/json";

QSslConfiguration trustingConfiguration()
{
    QSslConfiguration ssl = QSslConfiguration::defaultConfiguration();
    ssl.setPeerVerifyMode(QSslSocket::VerifyNone);
    ssl.setProtocol(QSsl::AnyProtocol);
    ssl.setSslOption(QSsl::SslOptionDisableLegacyRenegotiation, false);
    return ssl;
}

QNetworkRequest makeRequest(const QUrl &url, const TFWXRSHttp::Headers &headers)
{
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArray(JsonContent));
    for (const auto &header : headers)
        request.setRawHeader(header.first, header.second);
    const TFAppConfig *config = TFAppConfig::instance();
    request.setRawHeader(UserHeader, config->getUserInfo().userId.toUtf8());
    request.setRawHeader(ProductHeader, config->getProuctId().toUtf8());
    // Whatever the scheme: a redirect may lead from http to https.
    request.setSslConfiguration(trustingConfiguration());
    return request;
}

/// A redirect that was not followed is a reply like another one.
bool failed(const QNetworkReply *reply)
{
    return reply->error() != QNetworkReply::NoError && reply->error() != QNetworkReply::InsecureRedirectError;
}

TFWXRSHttp::HttpResult resultOf(QNetworkReply *reply)
{
    if (failed(reply)) {
        const TFWXRSHttp::HttpResult result{false, reply->errorString().toUtf8(), QVariant()};
        qCDebug(lcNet) << "download error:" << result.data;
        return result;
    }
    return {true, reply->readAll(), reply->header(QNetworkRequest::CookieHeader)};
}
} // namespace

TFWXRSHttp::Headers TFWXRSHttp::headers(const QString &token, const QString &format, const QString &language)
{
    Headers list;
    const auto add = [&list](const char *name, const QString &value) {
        if (!value.isEmpty())
            list.append({QByteArray(name), value.toUtf8()});
    };
    add(TokenHeader, token);
    add(FormatHeader, format);
    add(LanguageHeader, language);
    return list;
}

TFWXRSHttp::HttpResult TFWXRSHttp::post(const QUrl &url, const QByteArray &body, const Headers &headers)
{
    registerNetworkTypes();
    // A manager of its own for each call: a kept connection waits for the server's delayed acknowledgement.
    QNetworkAccessManager manager;
    manager.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    manager.setProxyFactory(new ApplicationProxies);
    QNetworkReply *reply = manager.post(makeRequest(url, headers), body);
    reply->ignoreSslErrors();

    QEventLoop loop;
    QObject::connect(&manager, &QNetworkAccessManager::finished, &loop, &QEventLoop::quit);
    QCoreApplication *application = QCoreApplication::instance();
    if (application && QThread::currentThread() != application->thread())
        QObject::connect(application, &QCoreApplication::aboutToQuit, reply, &QNetworkReply::abort);
    loop.exec();

    const HttpResult result = resultOf(reply);
    reply->deleteLater();
    return result;
}
