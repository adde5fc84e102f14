#include "parserdocument.h"
#include "subjecttest.h"

#include "jsonparser/tfjsonparser.h"
#include "mulittable/tfheaderdatastruct.h"
#include "records/tfdecimalformat.h"

using TFSubject::TFJsonParser;

class TestExportedRows : public SubjectTest
{
    Q_OBJECT

private slots:
    void exportGivesPlainValues_data();
    void exportGivesPlainValues();
    void exportRefusesBadReplies_data();
    void exportRefusesBadReplies();
    void precisionComesFromTheFormatCode();
};

void TestExportedRows::exportGivesPlainValues_data()
{
    QTest::addColumn<QJsonObject>("settings");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("plain");
    const QJsonObject unit{
        {"ColumnType", "BANDEDGridColumnWithUnit"}, {"PrevUnitFactor", 1}, {"ShowUnitFactor", 10000}};
    const QJsonObject date{{"ValueType", "DateTime"}};
    const double millis = 1596211200000; // 2020-08-01 00:00 in Shanghai
    testRow("no value", QJsonObject(), QJsonValue(QJsonValue::Undefined), "QString: ");
    testRow("two decimals", QJsonObject(), QJsonValue(1234567.891), "double:1234567.89");
    testRow("number in a text", QJsonObject(), QJsonValue("12.345"), "double:12.35");
    testRow("no decimals is an integer", QJsonObject{{"FormatString", "N0"}}, QJsonValue(1234567.8),
            "qlonglong:1234568");
    testRow("four decimals", QJsonObject{{"FormatString", "n4"}}, QJsonValue(1.00006), "double:1.0001");
    testRow("no number", QJsonObject(), QJsonValue("--"), "QString:--");
    testRow("unit column", unit, QJsonValue(25000), "double:2.5");
    testRow("factor without a unit column", QJsonObject{{"ShowUnitFactor", 10000}}, QJsonValue(25000),
            "double:25000");
    testRow("text is trimmed", QJsonObject{{"ValueType", "LongSTRING"}}, QJsonValue(" a "), "QString:a");
    testRow("date", date, QJsonValue(millis), "QString:2020-08-01");
    testRow("date in its format", QJsonObject{{"ValueType", "datetime"}, {"FormatString", "yyyy/M"}},
            QJsonValue(millis), "QString:2020/8");
    testRow("null date", date, QJsonValue(), "QString:");
    testRow("another type stays", QJsonObject{{"ValueType", "Int32"}}, QJsonValue(true), "bool:true");
}

void TestExportedRows::exportGivesPlainValues()
{
    QFETCH(QJsonObject, settings);
    QFETCH(QJsonValue, value);
    TFTreeStruct header("");
    TFJsonParser parser;
    parser.parseConfig(document({column("A", settings)}, {}), &header);
    const QJsonObject reply{{"state", 1},
                            {"data", QJsonObject{{"Data", QJsonArray{QJsonObject{{"A", value}, {"Z", 1}}}}}}};
    QList<QList<QVariant>> out{{"before"}};

    QVERIFY(parser.parseData(QJsonDocument(reply).toJson(), &out, &header));

    QCOMPARE(out.size(), 2);
    QCOMPARE(out.at(1).size(), 1);
    QTEST(written(out.at(1).at(0)), "plain");
    QVERIFY(!parser.hasRawRows() || parser.dataMaps().isEmpty());
    QVERIFY2(debugLines().join('\n').contains("header:  \"A\""), qPrintable(debugLines().join('\n')));
    QVERIFY(debugLines().contains("visible fields in head:  (\"A\")"));
}

void TestExportedRows::exportRefusesBadReplies_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("said");
    testRow("nothing", QByteArray(), false, "json is Empty");
    testRow("no json", QByteArray("<html>"), false, "parseData read json file failed... \"illegal value\"");
    testRow("no keys", QByteArray("{}"), false, "");
    testRow("a list", QByteArray("[1]"), false, "");
    testRow("bad state", QByteArray(R"({"state":0,"msg":"out of order","data":{"Data":[]}})"), false,
            "\"out of order\"");
    testRow("state as text", QByteArray(R"({"state":"1","msg":"text","data":{"Data":[]}})"), false,
            "\"text\"");
    testRow("empty data", QByteArray(R"({"state":1,"data":{}})"), false, "");
    testRow("no rows", QByteArray(R"({"state":1,"data":{"Summary":[]}})"), true, "");
    testRow("rows of a wrong type", QByteArray(R"({"state":1,"data":{"Data":{"a":1}}})"), true, "");
}

void TestExportedRows::exportRefusesBadReplies()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, ok);
    TFTreeStruct header("");
    TFJsonParser parser;
    QList<QList<QVariant>> out;
    QCOMPARE(parser.parseData(reply, &out, &header), ok);
    QVERIFY(out.isEmpty());
    QTEST(debugLines().join('\n'), "said");
}

void TestExportedRows::precisionComesFromTheFormatCode()
{
    for (int i = 0; i <= 20; ++i)
        QCOMPARE(TFDecimalFormat::precision(QString(i % 2 ? "n%1" : "N%1").arg(i)), i);
    for (const char *other :
         {"", "n", "n21", "n05", "n00", "n1x", "nn", "x2", "n-1", "n200", "#,##0.0", "n4 "})
        QCOMPARE(TFDecimalFormat::precision(other), 2);
}

SUBJECT_TEST_MAIN(TestExportedRows)
#include "tst_exportedrows.moc"
