#include "subjecttest.h"

#include "net/tfjsp.h"
#include "net/tfuc.h"
#include "net/tfviewproperties.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <random>

Q_DECLARE_METATYPE(TFUc::TFRequestContent)

namespace {
QString written(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString written(const NtResponse &r)
{
    return QString("%1 %2 ").arg(r.state).arg(r.msg) +
           written(QJsonObject{{"extend", r.extend}, {"data", r.data}});
}
} // namespace

class TestRequests : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();

    void bodiesAreSortedCompactJson_data();
    void bodiesAreSortedCompactJson();
    void laterParameterReplacesAnEarlierOne();
    void addressIsJoinedAsText_data();
    void addressIsJoinedAsText();
    void conditionIsWrittenBeforeItsParameterIsChecked();
    void valuesAreBoundByTheirNumberAndOperator_data();
    void valuesAreBoundByTheirNumberAndOperator();
    void operatorsOutsideTheListAreRefused_data();
    void operatorsOutsideTheListAreRefused();
    void propertiesAreReadByExactName();
    void envelopeNeedsItsFourKeys_data();
    void envelopeNeedsItsFourKeys();
    void badEnvelopeLeavesTheResponseAlone();
    void bytesAndTextReadAlike();
    void navigationNeedsRows();
};

void TestRequests::init()
{
    beginMessages();
    TFUc::setBaseUrl(QUrl("http://127.0.0.1:81/x"));
    TFUc::setUserId("u");
    TFUc::setProductId("p");
}

void TestRequests::bodiesAreSortedCompactJson_data()
{
    QTest::addColumn<TFUc::TFRequestContent>("content");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("body");
    const TFUc::Parameters params = {{"P", 1.5}, {"EMPTY", ""}, {"NULL", QVariant()}, {QString(), 1}};
    const TFUc::Filters filters = {{"F", "", ">=", {"a"}}, {"G", "g1", "==", {}}, {QString(), "", "==", {1}}};
    const QString filter = R"json("filter":"(F >= :F)","filterParams":{"F":"a"},)json";
    // Contents are made here, before init() of a row.
    TFUc::setBaseUrl(QUrl("http://127.0.0.1:81/x"));
    TFUc::setUserId("u");
    TFUc::setProductId("p");
    testRow("navigation", TFUc::navigationRequest(9007199254740991), "/x/bas/ds/data",
            R"json({"P_NODE_CODE":9007199254740991,%1,"objId":38})json");
    const QString blocks = R"json("filter":"(SECU_TYP_CODE == :SECU_TYP_CODE)",)json"
                           R"json("filterParams":{"SECU_TYP_CODE":10},"objId":43)json";
    testRow("blocks", TFUc::blockRowsRequest(10), "/x/bas/ds/data", "{%1," + blocks + "}");
    testRow("constants", TFUc::constantsRequest(), "/x/bas/ds/data", R"json({%1,"objId":390})json");
    testRow("configuration", TFUc::viewConfigRequest(260, {}, {}), "/x/bas/subject/data",
            R"json({%1,"flag":0,"obj_vw_id":260})json");
    testRow("rows of a page", TFUc::viewDataRequest(260, params, filters, {false, 3, 50}),
            "/x/bas/subject/data",
            R"json({"EMPTY":"","P":1.5,%1,)json" + filter +
                R"json("flag":1,"obj_vw_id":260,"page":3,"size":50})json");
    testRow("all rows", TFUc::viewDataRequest(260, {}, {}, {true, 3, 50}), "/x/bas/subject/data",
            R"json({%1,"flag":1,"obj_vw_id":260})json");
    testRow("whole set", TFUc::wholeDataRequest(-1, {}, filters), "/x/bas/subject/data",
            R"json({%1,)json" + filter + R"json("flag":2,"obj_vw_id":-1})json");
}

void TestRequests::bodiesAreSortedCompactJson()
{
    QFETCH(TFUc::TFRequestContent, content);
    QFETCH(QString, path);
    QFETCH(QString, body);
    QCOMPARE(content.url.path(), path);
    QCOMPARE(QString::fromUtf8(content.body), body.arg(R"("auth":{"prodId":"p","userId":"u"})"));
    QVERIFY(content.spare.isEmpty() && content.headers.isEmpty());
}

void TestRequests::laterParameterReplacesAnEarlierOne()
{
    const auto content = TFUc::viewRequest(5, 1, {{"A", 1}, {"A", "2"}, {"obj_vw_id", 9}}, {}, {true, 1, 1});
    const QJsonObject body = QJsonDocument::fromJson(content.body).object();
    QCOMPARE(body.value("A"), QJsonValue("2"));
    QCOMPARE(body.value("obj_vw_id"), QJsonValue(5));
}

void TestRequests::addressIsJoinedAsText_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("url");
    testRow("host and port", "http://h:8080", "http://h:8080/bas/ds/data");
    testRow("path with a slash", "http://h/api/", "http://h/api//bas/ds/data");
    testRow("empty: the toolkit decides", "", "file:///bas/ds/data");
}

void TestRequests::addressIsJoinedAsText()
{
    QFETCH(QString, base);
    TFUc::setBaseUrl(QUrl(base));
    QTEST(TFUc::dataObjectUrl().toString(), "url");
}

void TestRequests::conditionIsWrittenBeforeItsParameterIsChecked()
{
    TFUc::TFJSContent body;
    QVERIFY(body.insertFilter("F", ">", {1}));
    QVERIFY(body.insertFilter("G", "like", {"%a"}, "g"));

    expectWarning("has same param \"F\"  current param : QMap.*\"F\".*\"g\"");
    QVERIFY(!body.insertFilter("F", "<", {2}));

    QCOMPARE(written(body.object),
             R"json({"filter":"(F > :F) && (G like :g) && (F < :F)","filterParams":{"F":1,"g":"%a"}})json");
}

void TestRequests::valuesAreBoundByTheirNumberAndOperator_data()
{
    QTest::addColumn<QString>("op");
    QTest::addColumn<QList<QVariant>>("values");
    QTest::addColumn<QString>("bound");
    testRow("one value", ">", QList<QVariant>{1}, "1");
    testRow("two values", ">", QList<QVariant>{1, "b"}, R"([1,"b"])");
    testRow("in with one value is a list", "in", QList<QVariant>{1}, "[1]");
    testRow("nin with one value is none", "nin", QList<QVariant>{1}, "1");
    testRow("a list as the one value", "==", QList<QVariant>{QVariantList{1, 2}}, "[1,2]");
}

void TestRequests::valuesAreBoundByTheirNumberAndOperator()
{
    QFETCH(QString, op);
    QFETCH(QList<QVariant>, values);
    QFETCH(QString, bound);
    TFUc::TFJSContent body;
    QVERIFY(body.insertFilter("F", op, values));
    QCOMPARE(written(body.object),
             QString(R"json({"filter":"(F %1 :F)","filterParams":{"F":%2}})json").arg(op, bound));
}

void TestRequests::operatorsOutsideTheListAreRefused_data()
{
    QTest::addColumn<QString>("op");
    for (const char *op : {"=", "||", "LIKE", "", "between"})
        testRow(op, op);
}

void TestRequests::operatorsOutsideTheListAreRefused()
{
    QFETCH(QString, op);
    TFUc::TFJSContent body;
    expectWarning("did not contain the operator \"" + QRegularExpression::escape(op) + "\"");
    QVERIFY(!body.insertFilter("F", op, {1}));
    QVERIFY(body.object.isEmpty());
}

void TestRequests::propertiesAreReadByExactName()
{
    const QJsonArray rows = QJsonDocument::fromJson(R"([
        {"prop_name": "IsCross", "prop_val": "1"}, {"prop_name": "isCross", "prop_val": "0"},
        {"prop_name": "IsGroup", "prop_val": "true"}, {"prop_name": "IsOrder", "prop_val": 1},
        {"prop_name": "isPaged", "prop_val": "0"}, {"prop_name": "isShowFilter"},
        {"prop_name": "pageSize", "prop_val": "50"}, {"prop_name": "FrozenCount", "prop_val": "x"},
        {"prop_name": "MaxColumnWith", "prop_val": "300"},
        {"prop_name": "ObjViewType", "prop_val": "chart"}, {"prop_name": "ObjViewType", "prop_val": "table"},
        {"prop_name": "Bands", "prop_val": "no", "ext_prop_val": "[]"}, 5, null, {}, {"prop_val": "1"}
    ])")
                                .array();

    const TFUc::TFViewProperties p = TFUc::readViewProperties(rows);

    QVERIFY(p.IsCross && !p.IsGroup && !p.IsOrder && !p.isPaged && !p.isShowFilter && !p.isShowBlock);
    QCOMPARE(p.pageSize, 50.0);
    QCOMPARE(p.FrozenCount, 0.0);
    QCOMPARE(p.VGridColumnWidth, 200.0);
    QCOMPARE(p.BandsLevel, 1.0);
    QCOMPARE(p.MaxColumnWith, QString("300"));
    QCOMPARE(p.ObjViewType, QString("table"));
    QCOMPARE(p.Bands, QString("[]"));
    QVERIFY(TFUc::readViewProperties({}).isPaged);
}

void TestRequests::envelopeNeedsItsFourKeys_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("said");
    testRow("all", R"({"state":1,"msg":"x","extend":null,"data":[]})", true, "");
    testRow("null everywhere", R"({"state":null,"msg":null,"extend":null,"data":null})", true, "");
    testRow("an error of the service is an envelope", R"({"state":-5,"msg":"no","extend":{},"data":{}})",
            true, "");
    testRow("none", "{}", false, "can't found the key: \"state\"");
    testRow("no data", R"({"state":1,"msg":"x","extend":null})", false, "can't found the key: \"data\"");
    testRow("a list", "[1,2]", false, "can't found the key: \"state\"");
}

void TestRequests::envelopeNeedsItsFourKeys()
{
    QFETCH(QString, json);
    QFETCH(bool, ok);
    QFETCH(QString, said);
    NtResponse response;
    QCOMPARE(TFJSP::parseResponse(json, response), ok);
    QCOMPARE(debugLines().join('\n'), said);
    QVERIFY(TFJSP::hasAllKeys({}, {}));
}

void TestRequests::badEnvelopeLeavesTheResponseAlone()
{
    NtResponse response;
    QVERIFY(TFJSP::parseResponse(QString(R"({"state":"7","msg":"m","extend":1,"data":[2]})"), response));
    QCOMPARE(response.state, 0);
    QCOMPARE(response.msg, QString("m"));
    const QString before = written(response);

    expectWarning("respone is not json obj: \"illegal value\"");
    QVERIFY(!TFJSP::parseResponse(QString("<html>"), response));
    QVERIFY(!TFJSP::parseResponse(QString("{}"), response));
    QCOMPARE(written(response), before);
}

void TestRequests::bytesAndTextReadAlike()
{
    // Replies with bytes changed at random: broken UTF-8, zero bytes, cut escapes, a mark at the start.
    allowWarnings("respone is not json obj:");
    const QByteArray good =
        R"({"state":1,"msg":"年度\ud83d\ude00 \u4e2d","extend":{"a":[1,2.5,-3e300]},"data":[{"é":"元"}]})";
    std::mt19937 random(7);
    const QByteArray spoilers("\0\xff\xed\xa0\x80\xef\xbb\xbf\"\\{}[],\xf0\x9f", 18);
    for (int round = 0; round < 5000; ++round) {
        QByteArray reply = good;
        for (unsigned i = 0; i < random() % 4; ++i)
            reply[int(random() % unsigned(reply.size()))] = spoilers.at(int(random() % 18));
        if (random() % 8 == 0)
            reply.prepend("\xef\xbb\xbf");
        NtResponse fromBytes;
        NtResponse fromText;
        const bool ok = TFJSP::parseResponse(QString::fromUtf8(reply), fromText);
        QVERIFY2(TFJSP::parseResponse(reply, fromBytes) == ok, reply.toPercentEncoding());
        QCOMPARE(written(fromBytes), written(fromText));
    }
}

void TestRequests::navigationNeedsRows()
{
    QJsonArray rows;
    QVERIFY(TFJSP::parseNavTree(QString(R"({"state":0,"msg":"","extend":null,"data":[{"A":1},2]})"), rows));
    QCOMPARE(rows.size(), 2);
    QVERIFY(!TFJSP::parseNavTree(QByteArray(R"({"state":1,"msg":"","extend":null,"data":{"A":1}})"), rows));
    QCOMPARE(debugLines(), QStringList("parseSubjectTree:array is empty"));
    QVERIFY(rows.isEmpty());
}

SUBJECT_TEST_MAIN(TestRequests)
#include "tst_requests.moc"
