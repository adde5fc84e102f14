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
    void initTestCase()
    {
        TFUc::setBaseUrl(QUrl("http://127.0.0.1:81/x"));
        TFUc::setUserId("u");
        TFUc::setProductId("p");
    }

    void bodiesAreSortedCompactJson_data()
    {
        QTest::addColumn<TFUc::TFRequestContent>("content");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("body");
        const TFUc::Parameters params = {{"P", 1}, {"EMPTY", ""}, {"NULL", QVariant()}, {QString(), 1}};
        const TFUc::Parameters twice = {{"P", 1}, {"P", 1.5}, {"obj_vw_id", 9}, {"page", 9}};
        const TFUc::Filters filters = {
            {"F", "", ">=", {"a"}}, {"G", "", "==", {}}, {QString(), "", "==", {1}}};
        const QString filter = R"json("filter":"(F >= :F)","filterParams":{"F":"a"},)json";
        testRow("navigation", TFUc::navigationRequest(9007199254740991), "/x/bas/ds/data",
                R"json({"P_NODE_CODE":9007199254740991,%1,"objId":38})json");
        const QString blocks = R"json("filter":"(SECU_TYP_CODE == :SECU_TYP_CODE)",)json"
                               R"json("filterParams":{"SECU_TYP_CODE":10},"objId":43)json";
        testRow("blocks", TFUc::blockRowsRequest(10), "/x/bas/ds/data", "{%1," + blocks + "}");
        testRow("constants", TFUc::constantsRequest(), "/x/bas/ds/data", R"json({%1,"objId":390})json");
        testRow("configuration", TFUc::viewConfigRequest(260, params, filters), "/x/bas/subject/data",
                R"json({"EMPTY":"","P":1,%1,)json" + filter + R"json("flag":0,"obj_vw_id":260})json");
        testRow("rows of a page", TFUc::viewDataRequest(260, params, filters, {false, 3, 50}),
                "/x/bas/subject/data",
                R"json({"EMPTY":"","P":1,%1,)json" + filter +
                    R"json("flag":1,"obj_vw_id":260,"page":3,"size":50})json");
        testRow("all rows", TFUc::viewDataRequest(260, {}, {}, {true, 3, 50}), "/x/bas/subject/data",
                R"json({%1,"flag":1,"obj_vw_id":260})json");
        testRow("whole set", TFUc::wholeDataRequest(-1, {}, filters), "/x/bas/subject/data",
                R"json({%1,)json" + filter + R"json("flag":2,"obj_vw_id":-1})json");
        testRow("the last of a name counts", TFUc::viewRequest(5, 1, twice, {}, {false, 1, 2}),
                "/x/bas/subject/data", R"json({"P":1.5,%1,"flag":1,"obj_vw_id":5,"page":9,"size":2})json");
    }

    void bodiesAreSortedCompactJson()
    {
        QFETCH(TFUc::TFRequestContent, content);
        QFETCH(QString, body);
        QTEST(content.url.path(), "path");
        QCOMPARE(QString::fromUtf8(content.body), body.arg(R"("auth":{"prodId":"p","userId":"u"})"));
        QVERIFY(content.spare.isEmpty() && content.headers.isEmpty());
    }

    void addressIsJoinedAsText()
    {
        const auto restore = qScopeGuard([this] { initTestCase(); });
        TFUc::setBaseUrl(QUrl("http://h:8080/api/"));
        QCOMPARE(TFUc::dataObjectUrl(), QUrl("http://h:8080/api//bas/ds/data"));
        TFUc::setBaseUrl(QUrl()); // the toolkit decides what becomes of the path
        QCOMPARE(TFUc::dataObjectUrl(), QUrl("file:///bas/ds/data"));
    }

    void conditionIsWrittenBeforeItsParameterIsChecked()
    {
        TFUc::TFJSContent body;
        QVERIFY(body.insertFilter("F", ">", {1}));
        QVERIFY(body.insertFilter("G", "like", {"%a"}, "g"));

        expectWarning("has same param \"F\"  current param : QMap.*\"F\".*\"g\"");
        QVERIFY(!body.insertFilter("F", "<", {2}));

        QCOMPARE(
            written(body.object),
            R"json({"filter":"(F > :F) && (G like :g) && (F < :F)","filterParams":{"F":1,"g":"%a"}})json");
    }

    void valuesAreBoundByTheirNumberAndOperator_data()
    {
        QTest::addColumn<QString>("op");
        QTest::addColumn<QVariantList>("values");
        QTest::addColumn<QString>("bound");
        testRow("one value", ">", QVariantList{1}, "1");
        testRow("two values", ">", QVariantList{1, "b"}, R"([1,"b"])");
        testRow("in with one value is a list", "in", QVariantList{1}, "[1]");
        testRow("nin with one value is none", "nin", QVariantList{1}, "1");
        testRow("a list as the one value", "==", QVariantList{QVariant(QVariantList{1, 2})}, "[1,2]");
    }

    void valuesAreBoundByTheirNumberAndOperator()
    {
        QFETCH(QString, op);
        QFETCH(QVariantList, values);
        QFETCH(QString, bound);
        TFUc::TFJSContent body;
        QVERIFY(body.insertFilter("F", op, values));
        QCOMPARE(written(body.object),
                 QString(R"json({"filter":"(F %1 :F)","filterParams":{"F":%2}})json").arg(op, bound));
    }

    void operatorsOutsideTheListAreRefused()
    {
        TFUc::TFJSContent body;
        for (const char *op : {"=", "||", "LIKE", "", "between"}) {
            expectWarning("did not contain the operator \"" + QRegularExpression::escape(op) + "\"");
            QVERIFY2(!body.insertFilter("F", op, {1}) && body.object.isEmpty(), op);
        }
    }

    void propertiesAreReadByExactName()
    {
        const QJsonDocument rows = QJsonDocument::fromJson(R"([
            {"prop_name": "IsCross", "prop_val": "1"}, {"prop_name": "isCross", "prop_val": "0"},
            {"prop_name": "IsGroup", "prop_val": "true"}, {"prop_name": "IsOrder", "prop_val": 1},
            {"prop_name": "isPaged", "prop_val": "0"}, {"prop_name": "isShowFilter"},
            {"prop_name": "pageSize", "prop_val": "50"}, {"prop_name": "FrozenCount", "prop_val": "x"},
            {"prop_name": "ObjViewType", "prop_val": "chart"}, {"prop_name": "ObjViewType", "prop_val": "table"},
            {"prop_name": "Bands", "prop_val": "no", "ext_prop_val": "[]"}, 5, null, {}, {"prop_val": "1"}
        ])");

        const TFUc::TFViewProperties p = TFUc::readViewProperties(rows.array());

        QVERIFY(p.IsCross && !p.IsGroup && !p.IsOrder && !p.isPaged && !p.isShowFilter && !p.isShowBlock);
        QCOMPARE((QList<double>{p.pageSize, p.FrozenCount, p.VGridColumnWidth, p.BandsLevel}),
                 (QList<double>{50, 0, 200, 1}));
        QCOMPARE(p.ObjViewType, QString("table"));
        QCOMPARE(p.Bands, QString("[]"));
        QVERIFY(TFUc::readViewProperties({}).isPaged);
    }

    void envelopeNeedsItsFourKeys_data()
    {
        QTest::addColumn<QString>("json");
        QTest::addColumn<QString>("read");
        QTest::addColumn<QString>("said");
        testRow("all", R"({"state":7,"msg":"x","extend":null,"data":[2]})",
                R"(7 x {"data":[2],"extend":null})", "");
        testRow("null everywhere", R"({"state":null,"msg":null,"extend":null,"data":null})",
                R"(0  {"data":null,"extend":null})", "");
        testRow("a text as state", R"({"state":"7","msg":"no","extend":{},"data":1})",
                R"(0 no {"data":1,"extend":{}})", "");
        testRow("none", "{}", "", "can't found the key: \"state\"");
        testRow("no data", R"({"state":1,"msg":"x","extend":null})", "", "can't found the key: \"data\"");
        testRow("a list", "[1,2]", "", "can't found the key: \"state\"");
        testRow("no JSON", "<html>", "", "respone is not json obj: \"illegal value\"");
    }

    void envelopeNeedsItsFourKeys()
    {
        QFETCH(QString, json);
        QFETCH(QString, read);
        QFETCH(QString, said);
        allowWarnings("respone is not json obj");
        NtResponse response;
        response.msg = "before";
        QCOMPARE(TFJSP::parseResponse(json, response), !read.isEmpty());
        QCOMPARE(written(response), read.isEmpty() ? R"(0 before {"data":null,"extend":null})" : read);
        QCOMPARE((debugLines() + warnings()).join('\n'), said);
    }

    void bytesAndTextReadAlike()
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

    void navigationNeedsRows()
    {
        QJsonArray rows;
        QVERIFY(TFJSP::parseNavTree(QString(R"({"state":0,"msg":"","extend":null,"data":[1,2]})"), rows));
        QCOMPARE(rows.size(), 2);
        QVERIFY(!TFJSP::parseNavTree(QByteArray(R"({"state":1,"msg":"","extend":0,"data":{"A":1}})"), rows));
        QCOMPARE(debugLines(), QStringList("parseSubjectTree:array is empty"));
        QVERIFY(rows.isEmpty());
    }
};

SUBJECT_TEST_MAIN(TestRequests)
#include "tst_requests.moc"
