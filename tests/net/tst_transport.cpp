#include "subjecttest.h"

#include "httpserver.h"
#include "httpservice/tfwxrshttp.h"
#include "net/tfdm.h"
#include "tfcore/tfappconfig.h"
#include "tfcore/tfrequestlog.h"
#include "tfcore/tfserviceconfig.h"

#include <QNetworkProxyFactory>
#include <QProcess>
#include <QSslKey>
#include <QTemporaryDir>

#include <atomic>

namespace {
/// Certificate and key that nobody signed, made for this run.
QSslConfiguration selfSigned()
{
    QTemporaryDir folder;
    const QString key = folder.filePath("key.pem");
    const QString certificate = folder.filePath("certificate.pem");
    QProcess openssl;
    openssl.start("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj",
                              "/CN=nobody", "-keyout", key, "-out", certificate});
    if (!openssl.waitForFinished() || openssl.exitCode() != 0)
        qFatal("no certificate: %s", openssl.readAllStandardError().constData());
    QFile keyFile(key);
    keyFile.open(QFile::ReadOnly);
    QSslConfiguration tls;
    tls.setLocalCertificateChain(QSslCertificate::fromPath(certificate));
    tls.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
    return tls;
}

/// Nothing for addresses, and a proxy that nobody is for plain sockets.
class ProxiesOfSockets : public QNetworkProxyFactory
{
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override
    {
        if (query.queryType() == QNetworkProxyQuery::UrlRequest)
            return {QNetworkProxy(QNetworkProxy::NoProxy)};
        return {QNetworkProxy(QNetworkProxy::Socks5Proxy, "127.0.0.1", 1)};
    }
};

/// The result of a request that a view started.
struct Delivery
{
    int count = 0;
    bool ok = false;
    QByteArray data;
    QThread *thread = nullptr;

    auto taker()
    {
        return [this](bool isOk, const QByteArray &bytes) {
            ++count;
            ok = isOk;
            data = bytes;
            thread = QThread::currentThread();
        };
    }
};
} // namespace

class TestTransport : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();

    void headersComeInOrderAndOnlyWithValues();
    void requestCarriesIdentityAndBody();
    void emptyTokenIsNotSent();
    void failuresGiveTheErrorText_data();
    void failuresGiveTheErrorText();
    void redirectIsFollowedUnlessItLeavesTls();
    void untrustedCertificateIsAccepted();
    void proxiesOfTheApplicationAreKept();
    void resultArrivesQueuedOnTheReceiversThread();
    void requestWithoutReceiverDelivers();
    void destroyedReceiverGetsNothing();
    void quittingEndsARequest();
    void requestsRunSideBySideAndAreLogged();
    void serviceAddressIsReadAnewByEachView();
};

void TestTransport::init()
{
    beginMessages();
    TFAppConfig::instance()->setAppToken("secret-密");
    TFAppConfig::instance()->setProuctId("product");
    TFAppConfig::instance()->setUserInfo({"user-1", "A user"});
}

void TestTransport::headersComeInOrderAndOnlyWithValues()
{
    using Headers = TFWXRSHttp::Headers;
    QCOMPARE(TFWXRSHttp::headers("t", "f", "l"),
             (Headers{{"kvt-token", "t"}, {"kvt-format", "f"}, {"kvt-language", "l"}}));
    QCOMPARE(TFWXRSHttp::headers("", "元", ""), (Headers{{"kvt-format", "元"}}));
    QVERIFY(TFWXRSHttp::headers({}, {}, {}).isEmpty());
}

void TestTransport::requestCarriesIdentityAndBody()
{
    HttpServer server;
    server.setReplies({httpReply("200 OK", "{\"data\":1}")});

    const auto result =
        TFWXRSHttp::post(server.url("/bas/ds/data"), R"({"objId":38})", TFWXRSHttp::headers("t", "", ""));

    QVERIFY(result.ok);
    QCOMPARE(result.data, QByteArray("{\"data\":1}"));
    const QByteArray request = server.requests().value(0);
    QVERIFY2(request.startsWith("POST /bas/ds/data HTTP/1.1\r\n"), request);
    for (const char *line : {"Content-Type: application/json\r\n", "kvt-token: t\r\n", "userId: user-1\r\n",
                             "prodId: product\r\n"})
        QVERIFY2(request.contains(line), line);
    QVERIFY2(!request.contains("kvt-format") && !request.contains("kvt-language"), request);
    QVERIFY(request.endsWith("\r\n\r\n{\"objId\":38}"));
}

void TestTransport::emptyTokenIsNotSent()
{
    HttpServer server;
    server.setReplies({httpReply("200 OK", "{}")});
    TFAppConfig::instance()->setAppToken("");
    Delivery delivery;

    TFDm::startRequest({server.url(), "{}", {}, {}}, this, delivery.taker());

    QTRY_COMPARE(delivery.count, 1);
    QVERIFY(!server.requests().value(0).contains("kvt-token"));
    QVERIFY(server.requests().value(0).contains("userId: user-1\r\n"));
}

void TestTransport::failuresGiveTheErrorText_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QByteArray>("text");
    testRow("HTTP 500", httpReply("500 Oh", "the body"), QByteArray("server replied: Oh"));
    testRow("HTTP 401", httpReply("401 No", "{}"), QByteArray("Host requires authentication"));
    testRow("closed connection", QByteArray(), QByteArray("Connection closed"));
    testRow("body cut off", QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{\"state\""),
            QByteArray("Connection closed"));
}

void TestTransport::failuresGiveTheErrorText()
{
    QFETCH(QByteArray, reply);
    QFETCH(QByteArray, text);
    HttpServer server;
    server.setReplies({reply});

    const auto result = TFWXRSHttp::post(server.url(), "{}", {});

    QVERIFY(!result.ok);
    QVERIFY2(result.data.contains(text), result.data);
    QVERIFY(!result.cookies.isValid());
    QVERIFY(debugLines().last().startsWith("download error:"));
}

void TestTransport::redirectIsFollowedUnlessItLeavesTls()
{
    HttpServer plain;
    plain.setReplies({httpReply("302 Found", "", "Location: /there\r\n"), httpReply("200 OK", "arrived")});
    const auto followed = TFWXRSHttp::post(plain.url(), "{}", {});
    QVERIFY2(followed.ok, followed.data);
    QCOMPARE(followed.data, QByteArray("arrived"));

    HttpServer secure(selfSigned());
    secure.setReplies(
        {httpReply("302 Found", "stay", "Location: " + plain.url("/plain").toEncoded() + "\r\n")});
    const auto refused = TFWXRSHttp::post(secure.url(), "{}", {});
    QCOMPARE(plain.requests().size(), 2);
    QVERIFY2(refused.ok, refused.data);
}

void TestTransport::untrustedCertificateIsAccepted()
{
    HttpServer secure(selfSigned());
    secure.setReplies({httpReply("200 OK", "trusted")});
    const auto result = TFWXRSHttp::post(secure.url(), "{}", {});
    QVERIFY2(result.ok, result.data);
    QCOMPARE(result.data, QByteArray("trusted"));
}

void TestTransport::proxiesOfTheApplicationAreKept()
{
    HttpServer server;
    server.setReplies({httpReply("200 OK", "{}")});
    const auto restore = qScopeGuard([] { QNetworkProxyFactory::setApplicationProxyFactory(nullptr); });

    QNetworkProxy::setApplicationProxy(
        {QNetworkProxy::HttpProxy, server.url().host(), quint16(server.url().port())});
    QVERIFY(TFWXRSHttp::post(QUrl("http://no.such.host.invalid/there"), "{}", {}).ok);
    QVERIFY2(server.requests().value(0).startsWith("POST http://no.such.host.invalid/there"),
             server.requests().value(0));

    QNetworkProxyFactory::setApplicationProxyFactory(new ProxiesOfSockets);
    QVERIFY(TFWXRSHttp::post(server.url("/here"), "{}", {}).ok);
    QVERIFY2(server.requests().value(1).startsWith("POST /here"), server.requests().value(1));
}

void TestTransport::resultArrivesQueuedOnTheReceiversThread()
{
    HttpServer server;
    server.setReplies({httpReply("200 OK", "rows")});
    Delivery delivery;
    const TFDm dm(this);

    dm.startRequest({server.url(), "{}", {}, {}}, delivery.taker());
    QThreadPool::globalInstance()->waitForDone();
    QCOMPARE(delivery.count, 0);

    QTRY_COMPARE(delivery.count, 1);
    QVERIFY(delivery.ok);
    QCOMPARE(delivery.data, QByteArray("rows"));
    QCOMPARE(delivery.thread, qApp->thread());
    const QString log = debugLines().join('|');
    QVERIFY2(log.contains("request  QUrl(") && log.contains(" end \n") && log.contains("response--- QUrl("),
             qPrintable(log));
    QVERIFY2(log.contains("emitResult: true dataSize: 4"), qPrintable(log));
}

void TestTransport::requestWithoutReceiverDelivers()
{
    HttpServer server;
    server.setReplies({httpReply("200 OK", "rows")});
    Delivery delivery;
    TFDm::startRequest({server.url(), "{}", {}, {}}, nullptr, delivery.taker());
    QTRY_COMPARE(delivery.count, 1);
    QCOMPARE(delivery.thread, qApp->thread());
}

void TestTransport::destroyedReceiverGetsNothing()
{
    HttpServer server;
    server.setReplies({httpReply("200 OK", "rows")});
    server.hold();
    Delivery delivery;
    auto view = std::make_unique<QObject>();
    const TFDm dm(view.get());
    dm.startRequest({server.url(), "{}", {}, {}}, delivery.taker());
    QTRY_COMPARE(server.requests().size(), 1);

    view.reset();
    server.release();

    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(delivery.count, 0);
}

void TestTransport::quittingEndsARequest()
{
    // More requests than threads: some wait for their turn when the application quits.
    const int count = 2 * QThreadPool::globalInstance()->maxThreadCount() + 1;
    HttpServer server;
    server.hold();
    Delivery delivery;
    for (int i = 0; i < count; ++i)
        TFDm::startRequest({server.url(), "{}", {}, {}}, this, delivery.taker());
    QTRY_COMPARE(server.requests().size(), 1);

    QMetaObject::invokeMethod(qApp, "aboutToQuit");

    QVERIFY(QThreadPool::globalInstance()->waitForDone(5000));
    QTRY_COMPARE(delivery.count, count);
    QVERIFY(!delivery.ok);
    QCOMPARE(delivery.data, QByteArray("Operation canceled"));
}

void TestTransport::requestsRunSideBySideAndAreLogged()
{
    constexpr int Count = 20;
    HttpServer server;
    server.setReplies({httpReply("200 OK", "12345"), httpReply("500 Oh", ""), httpReply("200 OK", "12345")});
    QList<TFRequestRecord> records;
    connect(TFRequestLog::instance(), &TFRequestLog::finished, this,
            [&records](const TFRequestRecord &record) { records.append(record); });
    Delivery delivery;
    for (int i = 0; i < Count; ++i)
        TFDm::startRequest({server.url("/p"), QByteArray::number(i), {}, {}}, this, delivery.taker());

    QTRY_COMPARE(delivery.count, Count);
    QTRY_COMPARE(records.size(), Count);
    TFRequestLog::instance()->disconnect(this);

    QSet<QByteArray> bodies;
    int failed = 0;
    for (const TFRequestRecord &record : qAsConst(records)) {
        QCOMPARE(record.path, QString("/p"));
        QCOMPARE(record.bytes, qint64(record.ok ? 5 : 0));
        QCOMPARE(record.error.isEmpty(), record.ok);
        QVERIFY(record.ms >= 0 && record.time.isValid());
        bodies.insert(record.body);
        failed += record.ok ? 0 : 1;
    }
    QCOMPARE(bodies.size(), Count);
    QCOMPARE(failed, 1);
}

void TestTransport::serviceAddressIsReadAnewByEachView()
{
    TFServiceConfig::instance()->setHttpUrl("servercfg.ini:Subject", QUrl("http://one:1"));
    const TFDm first(this);
    QCOMPARE(TFUc::subjectUrl(), QUrl("http://one:1/bas/subject/data"));
    TFServiceConfig::instance()->setHttpUrl("servercfg.ini:Subject", QUrl("http://two:2"));
    QCOMPARE(TFUc::subjectUrl(), QUrl("http://one:1/bas/subject/data"));
    const TFDm second(this);
    QCOMPARE(TFUc::subjectUrl(), QUrl("http://two:2/bas/subject/data"));
    QVERIFY(TFUc::constantsRequest().body.contains(R"("auth":{"prodId":"product","userId":"user-1"})"));
    QCOMPARE(second.owner(), this);
}

SUBJECT_TEST_MAIN(TestTransport)
#include "tst_transport.moc"
