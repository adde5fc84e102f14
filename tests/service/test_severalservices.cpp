#include "runningservice.h"
#include "subjecttest.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>

#include <csignal>

namespace {

/// nginx as service/deploy/nginx.conf sets it up, but without TLS, before services on the given ports.
class RunningProxy
{
public:
    RunningProxy(const ServiceFixture &fixture, quint16 first, quint16 second)
    {
        QTcpServer free;
        free.listen(QHostAddress::LocalHost);
        m_port = free.serverPort();
        free.close();
        const QString name = fixture.filePath("nginx.conf");
        QFile file(name);
        if (file.open(QIODevice::WriteOnly))
            file.write(configuration(first, second));
        file.close();
        // Ends with the test, however that ends.
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start("setpriv", {"--pdeathsig", "KILL", "/usr/sbin/nginx", "-p", fixture.filePath({}),
                                    "-c", name, "-e", "stderr", "-g",
                                    "daemon off; master_process off; pid nginx.pid; error_log stderr crit;"});
    }

    ~RunningProxy()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    quint16 port() const { return m_port; }

    bool waitUntilReady() const
    {
        QTcpSocket socket;
        for (int i = 0; i < 200 && m_process.state() != QProcess::NotRunning; ++i) {
            socket.connectToHost("127.0.0.1", m_port);
            if (socket.waitForConnected(1000))
                return true;
            QTest::qWait(50);
        }
        return false;
    }

private:
    QByteArray configuration(quint16 first, quint16 second) const
    {
        QFile sample(QStringLiteral(PROJECT_SOURCE_DIR "/service/deploy/nginx.conf"));
        sample.open(QIODevice::ReadOnly);
        QString text = QString::fromUtf8(sample.readAll());
        text.remove(QRegularExpression("\\n *ssl_[^\\n]*"));
        text.replace("443 ssl http2", QString("127.0.0.1:%1").arg(m_port));
        text.replace("127.0.0.1:8081", QString("127.0.0.1:%1").arg(first));
        text.replace("127.0.0.1:8082", QString("127.0.0.1:%1").arg(second));
        QString folders;
        for (const char *kind : {"client_body", "proxy", "fastcgi", "uwsgi", "scgi"})
            folders += QString("%1_temp_path %1;").arg(QLatin1String(kind));
        return text.replace("http {", "http {" + folders).toUtf8();
    }

    QProcess m_process;
    quint16 m_port = 0;
};

QByteArray pageBody(int page)
{
    return R"({"obj_vw_id":10,"flag":1,"order":{"SECTOR":-1},"size":2,"page":)" + QByteArray::number(page) +
           '}';
}

/// Rows that the service on \a port has sent since its start.
int rowsSent(quint16 port)
{
    static const QRegularExpression line("\\nsubject_rows_sent_total (\\d+)");
    return line.match(QString::fromUtf8(get(port, "/metrics").body)).captured(1).toInt();
}

} // namespace

/// Two processes behind a proxy are one service: none of them keeps anything that a later request needs.
class TestSeveralServices : public SubjectTest
{
    Q_OBJECT

private slots:
    void pagesFromEitherProcessFitTogether()
    {
        RunningService first(m_fixture);
        RunningService second(m_fixture);
        RunningService alone(m_fixture);
        const RunningProxy proxy(m_fixture, first.port(), second.port());
        QVERIFY(proxy.waitUntilReady());

        for (int page = 1; page <= 7; ++page) {
            const Answer expected = post(alone.port(), SubjectPath, pageBody(page));
            QCOMPARE(expected.status, 200);
            QCOMPARE(post(proxy.port(), SubjectPath, pageBody(page)).body, expected.body);
        }

        QCOMPARE(rowsSent(first.port()) + rowsSent(second.port()), 12);
        QVERIFY(rowsSent(first.port()) > 0 && rowsSent(second.port()) > 0);
    }

    void oneProcessMayEnd()
    {
        RunningService first(m_fixture);
        RunningService second(m_fixture);
        const RunningProxy proxy(m_fixture, first.port(), second.port());
        QVERIFY(proxy.waitUntilReady());

        for (int i = 0; i < 20; ++i) {
            if (i == 5)
                first.end(SIGTERM);
            if (i == 10)
                second.end(SIGKILL);
            QCOMPARE(post(proxy.port(), SubjectPath, pageBody(1)).status, i < 10 ? 200 : 502);
        }
    }

private:
    ServiceFixture m_fixture;
};

SUBJECT_TEST_MAIN(TestSeveralServices)
#include "test_severalservices.moc"
