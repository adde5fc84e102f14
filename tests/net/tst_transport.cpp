#include "subjecttest.h"

#include "httpservice/tfwxrshttp.h"
#include "net/tfdm.h"
#include "testservice.h"
#include "tfcore/tfappconfig.h"
#include "tfcore/tfrequestlog.h"
#include "tfcore/tfserviceconfig.h"

#include <QNetworkProxyFactory>
#include <QProcess>
#include <QSslKey>
#include <QTemporaryDir>

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

    void start(const QUrl &url, QObject *receiver, const QByteArray &body = "{}")
    {
        TFDm::startRequest({url, body, {}, {}}, receiver, [this](bool isOk, const QByteArray &bytes) {
            ++count;
            ok = isOk;
            data = bytes;
            thread = QThread::currentThread();
        });
    }
};
} // namespace

class TestTransport : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        TFAppConfig::instance()->setAppToken("secret-密");
        TFAppConfig::instance()->setProuctId("product");
        TFAppConfig::instance()->setUserInfo({"user-1", "A user"});
        m_service = std::make_unique<TestService>();
    }

    void cleanup()
    {
        m_service.reset();
        endMessages();
    }

    void headersComeInOrderAndOnlyWithValues()
    {
        using Headers = TFWXRSHttp::Headers;
        QCOMPARE(TFWXRSHttp::headers("t", "f", "l"),
                 (Headers{{"kvt-token", "t"}, {"kvt-format", "f"}, {"kvt-language", "l"}}));
        QCOMPARE(TFWXRSHttp::headers("", "元", ""), (Headers{{"kvt-format", "元"}}));
    }

    void requestCarriesIdentityAndBody()
    {
        for (const char *token : {"secret-密", ""}) {
            TFAppConfig::instance()->setAppToken(token);
            m_service->forgetRequests();
            Delivery delivery;
            delivery.start(m_service->url().resolved(QUrl("/bas/ds/data")), this, R"({"objId":38})");
            QTRY_COMPARE(delivery.count, 1);

            const TestService::Request request = m_service->requests().value(0);
            QCOMPARE(request.method + ' ' + request.path.toUtf8() + ' ' + request.text,
                     QByteArray(R"(POST /bas/ds/data {"objId":38})"));
            QCOMPARE(request.headers.value("content-type"), QByteArray("application/json"));
            QCOMPARE(request.headers.value("userid"), QByteArray("user-1"));
            QCOMPARE(request.headers.value("prodid"), QByteArray("product"));
            QCOMPARE(request.headers.value("kvt-token"), QByteArray(token));
            QCOMPARE(request.headers.contains("kvt-token"), qstrlen(token) > 0);
            QVERIFY(!request.headers.contains("kvt-format") && !request.headers.contains("kvt-language"));
        }
    }

    void failuresGiveTheErrorText()
    {
        using Answer = TestService::Answer;
        const QList<QPair<Answer, QByteArray>> failures{{Answer{"the body", 500}, "server replied: Answer"},
                                                        {Answer{"", 200, 0, true}, "Connection closed"}};
        for (const auto &failure : failures) {
            m_service->setRule([&failure](const TestService::Request &) { return failure.first; });

            const auto result = TFWXRSHttp::post(m_service->url(), "{}", {});

            QVERIFY(!result.ok);
            QVERIFY2(result.data.contains(failure.second), result.data);
            QVERIFY(!result.cookies.isValid());
            QVERIFY(debugLines().last().startsWith("download error:"));
        }
    }

    void redirectIsFollowedUnlessItLeavesTls()
    {
        // Nobody has signed the certificate, and that does not matter.
        TestService secure(nullptr, selfSigned());
        const QByteArray away = "Location: " + m_service->url().resolved(QUrl("/plain")).toEncoded();
        for (TestService *service : {m_service.get(), &secure}) {
            service->setRule([away](const TestService::Request &request) {
                TestService::Answer answer{"arrived"};
                if (request.path != "/there") {
                    answer.status = 302;
                    answer.headers.append(request.path == "/away" ? away : "Location: /there");
                }
                return answer;
            });
            const auto followed = TFWXRSHttp::post(service->url(), "{}", {});
            QVERIFY2(followed.ok, followed.data);
            QCOMPARE(followed.data, QByteArray("arrived"));
        }

        const auto refused = TFWXRSHttp::post(secure.url().resolved(QUrl("/away")), "{}", {});
        QVERIFY2(refused.ok, refused.data);
        QCOMPARE(m_service->requests().size(), 2);
    }

    void proxiesOfTheApplicationAreKept()
    {
        const auto restore = qScopeGuard([] { QNetworkProxyFactory::setApplicationProxyFactory(nullptr); });

        QNetworkProxy::setApplicationProxy(
            {QNetworkProxy::HttpProxy, m_service->url().host(), quint16(m_service->url().port())});
        QVERIFY(TFWXRSHttp::post(QUrl("http://no.such.host.invalid/there"), "{}", {}).ok);
        QCOMPARE(m_service->requests().value(0).path, QString("http://no.such.host.invalid/there"));

        QNetworkProxyFactory::setApplicationProxyFactory(new ProxiesOfSockets);
        QVERIFY(TFWXRSHttp::post(m_service->url().resolved(QUrl("/here")), "{}", {}).ok);
        QCOMPARE(m_service->requests().value(1).path, QString("/here"));
    }

    void resultArrivesOnTheThreadThatAsked()
    {
        for (QObject *receiver : {static_cast<QObject *>(this), static_cast<QObject *>(nullptr)}) {
            Delivery delivery;
            delivery.start(m_service->url(), receiver);

            QTRY_COMPARE(delivery.count, 1);
            QVERIFY(delivery.ok);
            QCOMPARE(delivery.data, TestService::envelope(QJsonValue()));
            QCOMPARE(delivery.thread, qApp->thread());
        }
        const QString log = debugLines().join('|');
        QVERIFY2(log.contains("request  QUrl(") && log.contains(" end \n") &&
                     log.contains("response--- QUrl("),
                 qPrintable(log));
        QVERIFY2(log.contains("emitResult: true dataSize: "), qPrintable(log));
    }

    void destroyedReceiverGetsNothing()
    {
        m_service->setRule(held);
        Delivery delivery;
        auto view = std::make_unique<QObject>();
        delivery.start(m_service->url(), view.get());
        QTRY_COMPARE(m_service->heldCount(), 1);

        view.reset();
        m_service->release();

        QTRY_COMPARE(QThreadPool::globalInstance()->activeThreadCount(), 0);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(delivery.count, 0);
    }

    void quittingEndsARequest()
    {
        // More requests than threads: some wait for their turn when the application quits.
        const int threads = QThreadPool::globalInstance()->maxThreadCount();
        const int count = 2 * threads + 1;
        m_service->setRule(held);
        Delivery delivery;
        for (int i = 0; i < count; ++i)
            delivery.start(m_service->url(), this);
        QTRY_COMPARE(m_service->heldCount(), threads);

        QMetaObject::invokeMethod(qApp, "aboutToQuit");

        QVERIFY(QThreadPool::globalInstance()->waitForDone(5000));
        QTRY_COMPARE(delivery.count, count);
        QVERIFY(!delivery.ok);
        QCOMPARE(delivery.data, QByteArray("Operation canceled"));
    }

    void requestsRunSideBySideAndAreLogged()
    {
        constexpr int Count = 20;
        m_service->setRule([](const TestService::Request &request) {
            return TestService::Answer{"12345", request.text == "7" ? 500 : 200};
        });
        QList<TFRequestRecord> records;
        connect(TFRequestLog::instance(), &TFRequestLog::finished, this,
                [&records](const TFRequestRecord &record) { records.append(record); });
        Delivery delivery;
        for (int i = 0; i < Count; ++i)
            delivery.start(m_service->url().resolved(QUrl("/p")), this, QByteArray::number(i));

        QTRY_COMPARE(delivery.count, Count);
        QTRY_COMPARE(records.size(), Count);
        TFRequestLog::instance()->disconnect(this);

        QSet<QByteArray> bodies;
        for (const TFRequestRecord &record : qAsConst(records)) {
            QCOMPARE(record.path, QString("/p"));
            QCOMPARE(record.ok, record.body != "7");
            QCOMPARE(record.bytes, qint64(record.ok ? 5 : 0));
            QCOMPARE(record.error.isEmpty(), record.ok);
            QVERIFY(record.ms >= 0 && record.time.isValid());
            bodies.insert(record.body);
        }
        QCOMPARE(bodies.size(), Count);
    }

    void serviceAddressIsReadAnewByEachView()
    {
        TFServiceConfig::instance()->setHttpUrl("servercfg.ini:Subject", QUrl("http://one:1"));
        const TFDm first(this);
        TFServiceConfig::instance()->setHttpUrl("servercfg.ini:Subject", QUrl("http://two:2"));
        QCOMPARE(TFUc::subjectUrl(), QUrl("http://one:1/bas/subject/data"));
        const TFDm second(this);
        QCOMPARE(TFUc::subjectUrl(), QUrl("http://two:2/bas/subject/data"));
        QVERIFY(TFUc::constantsRequest().body.contains(R"("auth":{"prodId":"product","userId":"user-1"})"));
        QCOMPARE(second.owner(), this);
    }

private:
    static TestService::Answer held(const TestService::Request &) { return {"", 200, 0, false, true}; }

    std::unique_ptr<TestService> m_service;
};

SUBJECT_TEST_MAIN(TestTransport)
#include "tst_transport.moc"
