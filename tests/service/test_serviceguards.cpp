#include "runningservice.h"
#include "subjecttest.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTcpSocket>

#include <csignal>

namespace {

const QByteArray AllRows(R"({"obj_vw_id":10,"flag":1})");
const QByteArray Whole(R"({"obj_vw_id":10,"flag":2,"page":1,"size":2})");
const QByteArray Tree(R"({"objId":38,"P_NODE_CODE":2})");

/// A view that counts to :N, which takes as long as one likes.
QJsonObject countingView()
{
    return object(R"({'id': 20, 'name': 'slow', 'params': {'N': 1}, 'bands': [{'FieldName': 'LAST'}],
        'sql': ['WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < :N)',
                'SELECT max(n) AS LAST FROM c']})");
}

QByteArray counting(qint64 n)
{
    return R"({"obj_vw_id":20,"flag":1,"N":)" + QByteArray::number(n) + '}';
}

QStringList captions(const Answer &tree)
{
    QStringList names;
    for (const QJsonValue &row : tree.envelope().value("data").toArray()) {
        if (row.toObject().contains("LEVEL"))
            names << row.toObject().value("NODE_CAP").toString();
    }
    return names;
}

/// The samples of a text in the exposition format, by name and labels; its form is checked on the way.
QHash<QByteArray, double> samples(const QByteArray &text)
{
    static const QRegularExpression comment("^# (HELP [a-z_]+ .+|TYPE [a-z_]+ (counter|gauge|histogram))$");
    static const QRegularExpression sample(
        "^([a-z_]+(?:\\{[a-z]+=\"[^\"]+\"(?:,[a-z]+=\"[^\"]+\")*\\})?) ([0-9.e+-]+)$");
    QHash<QByteArray, double> found;
    for (const QByteArray &line : text.split('\n').mid(0, text.count('\n'))) {
        const QRegularExpressionMatch match = sample.match(QString::fromUtf8(line));
        if (match.hasMatch())
            found.insert(match.captured(1).toUtf8(), match.captured(2).toDouble());
        else if (!comment.match(QString::fromUtf8(line)).hasMatch())
            found.insert("bad line: " + line, 0);
    }
    return found;
}

} // namespace

class TestServiceGuards : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        m_fixture = std::make_unique<ServiceFixture>();
    }

    void aViewOfOtherProductsIsNotThere()
    {
        QJsonObject parent = ServiceFixture::tableDocument();
        parent.insert("products", "equity");
        m_fixture->write("a/10.json", parent);
        m_fixture->write("a/b/11.json", object(R"({
            'id': 11, 'name': 'x', 'products': ['fund', 'gold'], 'bands': [{'FieldName': 'SYMBOL'}],
            'sql': 'SELECT SYMBOL, SECTOR FROM price WHERE :S = :S', 'params': {'S': ''},
            'filters': [{'ClassName': 'VirtualCntrl', 'FieldName': 'S', 'ParameterCategory': 1},
                        {'ClassName': 'LabelControl', 'FieldName': 'SECTOR', 'Operator': '='}]})"));
        writeTokens("e u1 equity\nboth u2 equity,gold\nnone u3\nall u4 *\n");
        RunningService service(*m_fixture, {"--token-file", tokenFile()});
        const auto ask = [&service](const QByteArray &body, const QByteArray &token) {
            return post(service.port(), body == Tree ? NamedPath : SubjectPath, body, token);
        };

        const Answer refused = ask(Whole, "none");
        Answer absent = ask(QByteArray(Whole).replace("10", "99"), "none");
        QCOMPARE(refused.status, absent.status);
        QCOMPARE(refused.body, absent.body.replace("99", "10"));
        QCOMPARE(captions(ask(Tree, "none")), QStringList({"股票", "组", "网"}));

        QCOMPARE(captions(ask(Tree, "e")), QStringList({"股票", "组", "页", "网"}));
        for (const QByteArray &token : {QByteArray("e"), QByteArray("both"), QByteArray("all")}) {
            const Answer answer = ask(Whole, token);
            QCOMPARE(answer.status, 200);
            QCOMPARE(answer.body.contains("ObjShowName"), token != "e");
        }
    }

    void withoutTokensTheRequestNamesItsProduct()
    {
        QJsonObject view = ServiceFixture::tableDocument();
        view.insert("products", QJsonArray{"equity"});
        m_fixture->write("a/10.json", view);
        RunningService service(*m_fixture);

        QCOMPARE(post(service.port(), SubjectPath, Whole, {{"prodId", "equity"}}).status, 200);
        QCOMPARE(post(service.port(), SubjectPath, Whole, {{"prodId", "fund"}}).status, 400);
    }

    void aChangedTokenFileIsReadUnlessItIsBad()
    {
        writeTokens("old u\n");
        RunningService service(*m_fixture, {"--token-file", tokenFile()});
        const auto status = [&service](const QByteArray &token) {
            return post(service.port(), SubjectPath, Whole, token).status;
        };
        QCOMPARE(status("old"), 200);

        writeTokens("new u\n");
        QTRY_COMPARE_WITH_TIMEOUT(status("new"), 200, 20000);
        QCOMPARE(status("old"), 401);

        writeTokens("other u\nother u\n");
        QTRY_VERIFY_WITH_TIMEOUT(
            status("new") == 200 && service.errors().contains("tokens:2: the token stands twice"), 20000);
        QCOMPARE(status("other"), 401);
    }

    void changedDocumentsAreReadAtHangupUnlessOneIsBad()
    {
        RunningService service(*m_fixture);
        const auto hangUp = [&service] { ::kill(static_cast<pid_t>(service.process().processId()), SIGHUP); };
        const auto status = [&service] { return post(service.port(), SubjectPath, counting(1)).status; };
        QCOMPARE(status(), 400);

        m_fixture->write("20.json", countingView());
        hangUp();
        QTRY_COMPARE_WITH_TIMEOUT(status(), 200, 20000);

        QVERIFY(QFile::remove(m_fixture->viewFolder() + "/20.json"));
        m_fixture->write("13.json", QByteArray("{"));
        hangUp();
        QTRY_VERIFY_WITH_TIMEOUT(service.errors().contains("13.json: line 1"), 20000);
        QCOMPARE(status(), 200);
    }

    void aRequestBeyondALimitIsRefused_data()
    {
        QTest::addColumn<QStringList>("option");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("text");

        testRow("body", QStringList{"--max-body", "1024"}, AllRows + QByteArray(1000, ' '), 413,
                QByteArray("body: more than 1024 bytes"));
        testRow("rows", QStringList{"--max-rows", "11"}, AllRows, 400,
                QByteArray("size: more than 11 rows; ask for them page by page"));
        testRow("just as many rows", QStringList{"--max-rows", "12"}, AllRows, 200, QByteArray("S12"));
        testRow("page", QStringList{"--max-rows", "11"},
                QByteArray(R"({"obj_vw_id":10,"flag":1,"page":1,"size":12})"), 400,
                QByteArray("size: expected 1 to 11, found 12"));
        testRow("cells", QStringList{"--max-rows", "1"}, QByteArray(R"({"obj_vw_id":12,"flag":1})"), 200,
                QByteArray("GridColumns"));
        testRow("depth", QStringList{"--max-filter-depth", "2"},
                QByteArray(R"({"obj_vw_id":10,"flag":1,"filter":"(((PRICE > 1))) "})"), 400,
                QByteArray("filter: position 3: more than 2 parentheses deep"));
    }

    void aRequestBeyondALimitIsRefused()
    {
        QFETCH(QStringList, option);
        QFETCH(QByteArray, body);
        QFETCH(int, status);
        QFETCH(QByteArray, text);
        RunningService service(*m_fixture, option);

        const Answer answer = post(service.port(), SubjectPath, body);

        QCOMPARE(answer.status, status);
        QVERIFY2(answer.body.contains(text), answer.body.constData());
    }

    void aSlowQueryIsStopped()
    {
        m_fixture->write("20.json", countingView());
        RunningService service(*m_fixture, {"--max-seconds", "1", "--threads", "1"});

        const Answer slow = post(service.port(), SubjectPath, counting(1000000000));
        const Answer quick = post(service.port(), SubjectPath, counting(7));

        QCOMPARE(slow.status, 504);
        QCOMPARE(slow.envelope().value("state").toInt(), -504);
        QVERIFY2(slow.body.contains("took too long and was stopped"), slow.body.constData());
        QVERIFY2(quick.body.contains(R"("LAST":"7")"), quick.body.constData());
    }

    void theLogHasALineForEachRequest()
    {
        const QString path = m_fixture->filePath("access.log");
        writeTokens("sesame u1\n");
        RunningService service(*m_fixture, {"--access-log", path, "--token-file", tokenFile()});
        const auto lines = [](const QString &file) {
            QFile log(file);
            return log.open(QIODevice::ReadOnly) ? log.readAll().split('\n') : QList<QByteArray>();
        };

        post(service.port(), SubjectPath, Whole, "sesame");
        post(service.port(), SubjectPath, Whole, {{"userId", "a\"}\tb"}, {"kvt-token", "guess"}});
        QTRY_COMPARE(lines(path).size(), 3);

        const QJsonObject good = QJsonDocument::fromJson(lines(path).at(0)).object();
        QCOMPARE(good.keys(),
                 QStringList({"bytes", "ms", "path", "rows", "status", "target", "time", "user"}));
        QCOMPARE(good.value("user"), QJsonValue("u1"));
        QCOMPARE(good.value("target"), QJsonValue("10"));
        QCOMPARE(good.value("rows"), QJsonValue(2));
        const QJsonObject denied = QJsonDocument::fromJson(lines(path).at(1)).object();
        QCOMPARE(denied.value("status"), QJsonValue(401));
        QVERIFY(!lines(path).join().contains("sesame") && !lines(path).join().contains("guess"));

        QVERIFY(QFile::rename(path, path + ".1"));
        ::kill(static_cast<pid_t>(service.process().processId()), SIGHUP);
        QTRY_VERIFY(QFile::exists(path));
        post(service.port(), SubjectPath, Whole, "sesame");
        QTRY_COMPARE(lines(path).size(), 2);
    }

    void metricsCountRequestsByOutcome()
    {
        RunningService service(*m_fixture);
        post(service.port(), SubjectPath, Whole);
        post(service.port(), SubjectPath, Whole);
        post(service.port(), SubjectPath, "{}");
        post(service.port(), NamedPath, Tree);

        const QHash<QByteArray, double> found = samples(get(service.port(), "/metrics").body);

        for (auto it = found.begin(); it != found.end(); ++it)
            QVERIFY2(!it.key().startsWith("bad line"), it.key().constData());
        QCOMPARE(found.value(R"(subject_requests_total{endpoint="/bas/subject/data",outcome="ok"})"), 2.0);
        QCOMPARE(found.value(R"(subject_requests_total{endpoint="/bas/subject/data",outcome="refused"})"),
                 1.0);
        QCOMPARE(found.value(R"(subject_requests_total{endpoint="/bas/ds/data",outcome="ok"})"), 1.0);
        QCOMPARE(found.value("subject_rows_sent_total"), 4.0);
        const QByteArray name("subject_request_duration_seconds");
        const QByteArray label(R"({endpoint="/bas/subject/data")");
        QCOMPARE(found.value(name + "_count" + label + '}'), 3.0);
        QCOMPARE(found.value(name + "_bucket" + label + R"(,le="+Inf"})"), 3.0);
        QCOMPARE(found.value(name + "_bucket" + label + R"(,le="30"})"), 3.0);
        QVERIFY(found.value(name + "_sum" + label + '}') > 0);
        QVERIFY(found.value("process_resident_memory_bytes") > 1e6);
    }

    void healthFollowsTheDatabase()
    {
        if (ServiceFixture::isPostgres())
            QSKIP("only a file can be taken away");
        RunningService service(*m_fixture);
        const QString away = m_fixture->filePath("away");

        // No worker has opened the database yet.
        QVERIFY(QFile::rename(m_fixture->databaseAddress(), away));
        QCOMPARE(get(service.port(), "/healthz").status, 503);
        QCOMPARE(post(service.port(), SubjectPath, AllRows).status, 500);

        QVERIFY(QFile::rename(away, m_fixture->databaseAddress()));
        const Answer good = get(service.port(), "/healthz");
        QCOMPARE(good.status, 200);
        QCOMPARE(good.body, QByteArray("ok\n"));
        QCOMPARE(post(service.port(), SubjectPath, AllRows).status, 200);
    }

    void aLostOrReplacedDatabaseIsOpenedAnew()
    {
        RunningService service(*m_fixture, {"--threads", "1"});
        QVERIFY(post(service.port(), SubjectPath, AllRows).body.contains("S12"));
        if (ServiceFixture::isPostgres()) {
            m_fixture->breakConnections();
        } else {
            const QString next = m_fixture->filePath("next");
            QVERIFY(QFile::copy(m_fixture->databaseAddress(), next));
            m_fixture->change({"DELETE FROM price"});
            QVERIFY(QFile::remove(m_fixture->databaseAddress()));
            QCOMPARE(post(service.port(), SubjectPath, AllRows).status, 200);
            QVERIFY(QFile::rename(next, m_fixture->databaseAddress()));
        }

        QVERIFY(post(service.port(), SubjectPath, AllRows).body.contains("S12"));
        QCOMPARE(samples(get(service.port(), "/metrics").body).value("subject_database_reconnects_total"),
                 1.0);
    }

    void largeRepliesAreCompressedForWhoAsks()
    {
        RunningService service(*m_fixture, {"--gzip-from", "600"});
        const QByteArray small(R"({"obj_vw_id":10,"flag":1,"page":1,"size":1})");

        const Answer plain =
            post(service.port(), SubjectPath, AllRows, {{"Accept-Encoding", "gzip;q=0, identity"}});
        const Answer packed = post(service.port(), SubjectPath, AllRows, {{"Accept-Encoding", "br, gzip"}});
        const Answer unpacked = post(service.port(), SubjectPath, AllRows);

        QVERIFY(plain.body.size() > 600 && plain.encoding.isEmpty());
        QCOMPARE(packed.encoding, QByteArray("gzip"));
        QVERIFY(packed.body.startsWith("\x1f\x8b") && packed.body.size() < plain.body.size() / 2);
        QCOMPARE(unpacked.body, plain.body);
        QVERIFY(post(service.port(), SubjectPath, small, {{"Accept-Encoding", "gzip"}}).encoding.isEmpty());
    }

    void aConnectionServesSeveralRequestsUntilItIsSilent()
    {
        RunningService service(*m_fixture, {"--keep-alive", "1"});
        QTcpSocket socket;
        socket.connectToHost("127.0.0.1", service.port());
        QVERIFY(socket.waitForConnected());

        QByteArray answers;
        // The second request is already there when the first one is answered.
        socket.write("GET /healthz HTTP/1.1\r\nHost: x\r\n\r\nGET /healthz HTTP/1.1\r\nHost: x\r\n\r\n");
        while (answers.count("ok\n") < 2 && socket.waitForReadyRead(20000))
            answers += socket.readAll();

        QCOMPARE(answers.count("HTTP/1.1 200"), 2);
        QVERIFY(socket.waitForDisconnected(20000));
    }

    void runningRequestsAreFinishedAtTheEnd()
    {
        m_fixture->write("20.json", countingView());
        RunningService service(*m_fixture, {"--keep-alive", "60"});
        QTcpSocket silent;
        silent.connectToHost("127.0.0.1", service.port());
        QTcpSocket busy;
        busy.connectToHost("127.0.0.1", service.port());
        QVERIFY(silent.waitForConnected() && busy.waitForConnected());
        const QByteArray body = counting(1000000);
        busy.write("POST /bas/subject/data HTTP/1.1\r\nHost: x\r\nContent-Length: " +
                   QByteArray::number(body.size()) + "\r\n\r\n" + body);
        QTRY_COMPARE(samples(get(service.port(), "/metrics").body).value("subject_queries_running"), 1.0);

        QElapsedTimer timer;
        timer.start();
        service.end(SIGTERM);

        QVERIFY(timer.elapsed() < 20000);
        QCOMPARE(service.process().exitCode(), 0);
        while (busy.waitForReadyRead(1000)) {
        }
        QVERIFY(busy.readAll().contains(R"("LAST":"1000000")"));
    }

private:
    void writeTokens(const QByteArray &text) const
    {
        QFile::remove(tokenFile());
        QFile file(tokenFile());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QString tokenFile() const { return m_fixture->filePath("tokens"); }

    std::unique_ptr<ServiceFixture> m_fixture;
};

SUBJECT_TEST_MAIN(TestServiceGuards)
#include "test_serviceguards.moc"
