#include "runningservice.h"
#include "servicefixture.h"
#include "subjecttest.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpSocket>

#include <csignal>

namespace {

const QByteArray PageBody(R"({"obj_vw_id":10,"flag":1,"page":1,"size":2})");

} // namespace

class TestSubjectService : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        m_fixture = std::make_unique<ServiceFixture>();
    }

    void refusalsCarryStatusAndEnvelope_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");

        testRow("unknown path", "/bas/index/data", QByteArray("{}"), 404);
        testRow("no JSON", SubjectPath, QByteArray("\xff\xfe{"), 400);
        testRow("deep", NamedPath, QByteArray(500000, '['), 400);
        testRow("huge", SubjectPath, QByteArray(3 * 1024 * 1024, ' '), 413);
    }

    void refusalsCarryStatusAndEnvelope()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, body);
        QFETCH(int, status);
        RunningService service(*m_fixture);

        const Answer answer = post(service.port(), path, body);

        QCOMPARE(answer.status, status);
        QCOMPARE(answer.envelope().value("state").toInt(), -status);
        QVERIFY(!answer.envelope().value("msg").toString().isEmpty());
        QCOMPARE(post(service.port(), SubjectPath, PageBody).status, 200);
    }

    void textThatIsNotHttpDoesNoHarm()
    {
        RunningService service(*m_fixture);
        for (const QByteArray &text :
             {QByteArray("\0\0\0\r\n\r\n", 7), QByteArray("POST /bas/ds/data HTTP/1.1\r\n\r\n"),
              QByteArray("POST /bas/ds/data HTTP/1.1\r\nContent-Length: 99\r\n\r\n{")}) {
            QTcpSocket socket;
            socket.connectToHost("127.0.0.1", service.port());
            QVERIFY(socket.waitForConnected());
            socket.write(text);
            QVERIFY(socket.waitForBytesWritten());
            socket.abort();
        }

        QCOMPARE(post(service.port(), SubjectPath, PageBody).status, 200);
        QCOMPARE(service.process().state(), QProcess::Running);
    }

    void manyClientsAtOnceAreServed()
    {
        RunningService service(*m_fixture, {"--threads", "4"});
        QNetworkAccessManager manager;
        int open = 0;
        QStringList faults;
        for (int i = 0; i < 100; ++i) {
            const QString path = i % 2 ? SubjectPath : NamedPath;
            QNetworkRequest request(QUrl(QString("http://127.0.0.1:%1%2").arg(service.port()).arg(path)));
            request.setHeader(QNetworkRequest::ContentTypeHeader, "application/json");
            QNetworkReply *reply = manager.post(request, i % 2 ? PageBody : QByteArray(R"({"objId":390})"));
            ++open;
            connect(reply, &QNetworkReply::finished, this, [&open, &faults, reply] {
                --open;
                if (reply->error() != QNetworkReply::NoError)
                    faults << reply->errorString();
            });
        }

        QTRY_COMPARE_WITH_TIMEOUT(open, 0, 60000);
        QCOMPARE(faults, QStringList());
    }

    void tokensAreAskedForOnlyWithAFile()
    {
        QFile file(m_fixture->filePath("tokens"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("# comment\n\n  first \nsecond - *\n");
        file.close();
        RunningService service(*m_fixture, {"--token-file", file.fileName()});

        QCOMPARE(post(service.port(), SubjectPath, PageBody, "first").status, 200);
        QCOMPARE(post(service.port(), NamedPath, R"({"objId":390})", "second").status, 200);
        for (const QByteArray &token : {QByteArray(), QByteArray("firs"), QByteArray("# comment")}) {
            const Answer answer = post(service.port(), SubjectPath, PageBody, token);
            QCOMPARE(answer.status, 401);
            QVERIFY(!answer.body.contains("S12"));
        }
        RunningService open(*m_fixture);
        QCOMPARE(post(open.port(), SubjectPath, PageBody, "anything").status, 200);
    }

    void aPortBelongsToOneService()
    {
        RunningService first(*m_fixture);

        RunningService second(*m_fixture, {"--port", QString::number(first.port())});

        QCOMPARE(second.line(), QString());
        QTRY_COMPARE_WITH_TIMEOUT(second.process().state(), QProcess::NotRunning, 20000);
        QCOMPARE(second.process().exitCode(), 1);
    }

    void signalsEndItCleanly_data()
    {
        QTest::addColumn<int>("signal");

        testRow("SIGTERM", SIGTERM);
        testRow("SIGINT", SIGINT);
    }

    void signalsEndItCleanly()
    {
        QFETCH(int, signal);
        RunningService service(*m_fixture, {"--log", "access"});
        QCOMPARE(post(service.port(), SubjectPath, PageBody).status, 200);

        service.end(signal);

        QCOMPARE(service.process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(service.process().exitCode(), 0);
        const QByteArray log = service.process().readAllStandardError();
        QVERIFY2(log.contains(R"("user":"tester","path":"/bas/subject/data","target":"10","rows":2,)"),
                 log.constData());
    }

    void endsWithTheProcessThatStartedIt()
    {
        QProcess parent;
        parent.start("sh", {"-c", R"("$@" & echo $!; wait)", "sh", SERVICE_PROGRAM, "--db",
                            m_fixture->databaseAddress(), "--views", m_fixture->viewFolder(), "--port", "0",
                            "--exit-with-parent"});
        QByteArray output;
        while (!output.contains("listening") && parent.waitForReadyRead(20000))
            output += parent.readAll();
        const auto child = static_cast<pid_t>(output.left(output.indexOf('\n')).toInt());
        QVERIFY2(child > 0 && output.contains("listening"), output.constData());

        parent.kill();
        QVERIFY(parent.waitForFinished());

        // An ended process that nobody has waited for yet still takes signals, so its state is looked at.
        const auto isRunning = [child] {
            QFile status(QString("/proc/%1/stat").arg(child));
            return status.open(QIODevice::ReadOnly) && !status.readAll().contains(") Z ");
        };
        QTRY_VERIFY_WITH_TIMEOUT(!isRunning(), 20000);
    }

    void badDocumentsAreReportedAndTheRestIsServed()
    {
        m_fixture->write("13.json", QByteArray("{"));
        RunningService service(*m_fixture);
        QCOMPARE(post(service.port(), SubjectPath, PageBody).status, 200);

        service.end(SIGTERM);

        QVERIFY(service.process().readAllStandardError().startsWith("13.json: line 1"));
    }

    void wrongUsageIsToldWithItsStatus_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("text");

        const QStringList good{"--db", "DB", "--views", "VIEWS"};
        testRow("nothing", QStringList(), 2, QByteArray("option --db is required"));
        testRow("port", good + QStringList{"--port", "x"}, 2, QByteArray("--port takes a number"));
        testRow("unknown", good + QStringList{"--nope"}, 2, QByteArray("nope"));
        testRow("token file", good + QStringList{"--token-file", "/nope"}, 2,
                QByteArray("cannot read token file"));
        testRow("address", good + QStringList{"--host", "203.0.113.1"}, 1,
                QByteArray("cannot listen on 203.0.113.1"));
        testRow("no database", QStringList{"--db", "/nope", "--views", "VIEWS"}, 1,
                QByteArray("no database file /nope"));
        testRow("not a database", QStringList{"--db", "VIEWS/12.json", "--views", "VIEWS"}, 1,
                QByteArray("cannot open database"));
        testRow("check", good + QStringList{"--check"}, 0, QByteArray("3 views, 0 faults"));
        testRow("check in a relative folder",
                QStringList{"--db", ServiceFixture::isPostgres() ? "DB" : "test.sqlite", "--views", "views",
                            "--check"},
                0, QByteArray("3 views, 0 faults"));
        testRow("check of nothing", QStringList{"--db", "DB", "--views", "/nope", "--check"}, 1,
                QByteArray("/nope: no such folder"));
    }

    void wrongUsageIsToldWithItsStatus()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, text);
        arguments.replaceInStrings("DB", m_fixture->databaseAddress());
        arguments.replaceInStrings("VIEWS", m_fixture->viewFolder());
        QProcess process;
        process.setWorkingDirectory(m_fixture->filePath(QString()));
        process.setProcessChannelMode(QProcess::MergedChannels);

        process.start(QStringLiteral(SERVICE_PROGRAM), arguments);
        QVERIFY(process.waitForFinished(20000));

        const QByteArray output = process.readAll();
        QCOMPARE(process.exitCode(), status);
        QVERIFY2(output.contains(text), output.constData());
    }

private:
    std::unique_ptr<ServiceFixture> m_fixture;
};

SUBJECT_TEST_MAIN(TestSubjectService)
#include "test_subjectservice.moc"
