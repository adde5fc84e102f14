#include "parserdocument.h"
#include "subjecttest.h"

#include "jsonparser/tfjsonparser.h"
#include "jsonparser/tfobjectviewconfigtable.h"
#include "jsonparser/tfsummaryjsontable.h"
#include "jsonparser/tfviewconfigtable.h"
#include "mulittable/tfheaderdatastruct.h"
#include "records/tfrowstore.h"

using TFSubject::TFJsonParser;

class TestParser : public SubjectTest
{
    Q_OBJECT

private slots:
    void eachDocumentReplacesTheOneBefore();
    void childViewsAreForwarded();
    void laterPageReplacesRowsAndSummary();
    void captionsAndWidthsComeFromTheObject();
    void captionExpressionSeesTheFilters();
    void crossTableTakesItsColumnsFromTheSummary();
};

void TestParser::eachDocumentReplacesTheOneBefore()
{
    TFTreeStruct header("");
    TFJsonParser parser;
    QJsonObject first = document({column("A")}, {QJsonObject{{"A", 1}}});
    first.insert("Object_View", QJsonArray{QJsonObject{{"obj_vw_name", "name"}}});
    QVERIFY(parser.parseConfig(first, &header));

    QVERIFY(!parser.parseConfig(QJsonValue(QJsonValue::Undefined), &header));
    QVERIFY(!parser.parseConfig(QJsonObject(), nullptr));
    QCOMPARE(parser.objectViewName(), QString("name"));
    QCOMPARE(written(parser.rows()), QStringList("A=qlonglong:1"));

    QVERIFY(parser.parseConfig(QJsonObject{{"Object", QJsonArray{1}}, {"Object_Property", QJsonArray{1}}},
                               &header));
    QVERIFY(!header.hasChildren() && !parser.hasRawRows() && parser.rows().isEmpty());
    QVERIFY(!parser.viewConfigTable() && !parser.objectViewConfigTable() && !parser.summaryTable());
    QCOMPARE(line(parser.objectViewName(), parser.rowCount(), parser.pageIndex(), parser.pageSize()),
             QString(" -1 -1 -1"));

    QVERIFY(parser.parseConfig(QJsonObject{{"Summary", QJsonArray()}, {"Data", 5}}, &header));
    QVERIFY(parser.rowCount() == 0 && !parser.hasRawRows());
    QVERIFY(parser.parseConfig(QJsonArray{1}, &header));
}

void TestParser::childViewsAreForwarded()
{
    TFTreeStruct header("");
    TFJsonParser parser;
    QStringList announced;
    connect(&parser, &TFJsonParser::signalSubTableJsonData, &parser, [&](qint64 id) {
        announced.append(QString("%1 over %2 row").arg(id).arg(parser.dataMaps().size()));
    });
    const QJsonArray children{QJsonObject{{"ObjShowName", "7"}, {"Caption", "c"}, {"Propertyparams", "A=B"}}};
    parser.parseConfig(document({}, {}, {extension("childView", children)}), &header,
                       TFRawRows::fromMaps({{{"A", 1}}}));
    QCOMPARE(announced, QStringList("7 over 1 row"));
    QCOMPARE(parser.childViewParams(7), QString("A=B"));
}

void TestParser::laterPageReplacesRowsAndSummary()
{
    TFTreeStruct header("");
    TFJsonParser parser;
    parser.clearData();
    QVERIFY(!parser.parseData(QJsonValue(QJsonObject())));
    QVERIFY(!parser.parseData(QJsonValue(5)));
    parser.parseConfig(document({column("A"), column("B")}, {QJsonObject{{"A", 1}}}), &header);

    QVERIFY(parser.parseData(QJsonValue(QJsonObject{
        {"Data", QJsonArray{QJsonObject{{"C", "c"}, {"B", 2.5}, {"SECU_ID", "12"}}, QJsonObject()}},
        {"Summary", QJsonArray{QJsonObject{{"Item", "rcount"}, {"value", 40}},
                               QJsonObject{{"Item", "pindex"}, {"value", 2}}}}})));

    QCOMPARE(written(parser.rows()),
             QStringList({"A=- | B=double:2.5 | C=QString:c | SECU_ID=QString:12", "A=- | B=-"}));
    QCOMPARE(parser.rowStore().secuId(0, 1), 12.0);
    QCOMPARE(parser.rowStore().secuId(0, 2), 0.0);
    QCOMPARE(parser.rowStore().cellCount(1), 2);
    QCOMPARE(line(parser.rowCount(), parser.pageIndex(), parser.pageSize()), QString("40 2 200"));

    QVERIFY(parser.parseData(
        QJsonValue(QJsonObject{{"Summary", QJsonArray{QJsonObject{{"Item", "pindex"}, {"value", 3}}}}})));
    QCOMPARE(parser.rows().size(), 2);
    QCOMPARE(parser.rowCount(), 40);

    const TFRowStore handedOver = parser.rowStore();
    parser.clearData();
    QVERIFY(!parser.hasRawRows() && parser.rows().isEmpty() && parser.dataMaps().isEmpty());
    QCOMPARE(parser.rowCount(), 40);
    QCOMPARE(written(handedOver.row(1)), QString("A=- | B=-"));
}

void TestParser::captionsAndWidthsComeFromTheObject()
{
    const auto field = [](const QString &name, const QString &status, const QJsonObject &settings) {
        return QJsonObject{{"obj_prop_name", name}, {"vw_sts", status}, {"ots_cfg", text(settings)}};
    };
    QJsonObject doc = document({column("A"), column("B"), column("C"), column("D", {{"Width", -9}})}, {});
    doc.insert("Object_View_Config",
               QJsonArray{field("A", "1", {{"FieldName", "A"}, {"Caption", "object"}, {"Width", 70}}),
                          field("B", "2", {{"FieldName", "B"}, {"Width", 200}})});
    TFTreeStruct header("");
    TFJsonParser parser;
    expectWarning("cant find field name: \"C\"");
    expectWarning("cant find field name: \"D\"");
    parser.parseConfig(doc, &header);
    QStringList columns;
    for (const TFTreeStruct *leaf : header.leaves())
        columns.append(line(leaf->displayCaption(), leaf->info().width));
    QCOMPARE(columns, QStringList({"object 70", "C 0", "D -9"}));
}

void TestParser::captionExpressionSeesTheFilters()
{
    const QJsonObject filters =
        extension("filters", QJsonArray{QJsonObject{{"Caption", "年"}, {"DefualtValue", "=2020"}}});
    const auto captionOf = [&filters](const QString &caption) {
        TFTreeStruct header("");
        TFJsonParser parser;
        parser.parseConfig(document({column("A", {{"Caption", caption}})}, {}, {filters}), &header);
        return header.leafCaptions().join('|');
    };
    QCOMPARE(captionOf("收入{[年]-1}年"), QString("收入2019年"));
    QCOMPARE(captionOf("bad{[none]}end"), QString("badend"));
    QCOMPARE(captionOf("{}empty"), QString("empty"));
    QCOMPARE(captionOf("a}b{c"), QString("a}b{c"));
    QCOMPARE(captionOf("two {1}{[年]} here"), QString("two  here"));
}

void TestParser::crossTableTakesItsColumnsFromTheSummary()
{
    const QJsonObject cross{{"prop_name", "IsCross"}, {"prop_val", "1"}};
    const QString columns =
        R"([{"fieldName":"X","caption":"x","showStatus":1,"width":50,"valueType":"String"},
        {"fieldName":"Y","caption":"y","showStatus":2,"valueType":"String"},{"fieldName":"2020__Y","ownerBand":"X","showStatus":6}])";
    QJsonObject doc = document({column("A")}, {QJsonObject{{"X", 1}, {"Y", 2}}}, {cross});
    TFTreeStruct header("");
    TFJsonParser parser;
    parser.parseConfig(doc, &header);
    QCOMPARE(header.leafCaptions(), QStringList("A"));

    doc.insert("Summary", QJsonArray{QJsonObject{{"Item", "GridColumns"}, {"value", columns}}});
    parser.parseConfig(doc, &header);
    QCOMPARE(header.children().size(), 1);
    QCOMPARE(header.children().first()->info().width, 50);
    QCOMPARE(header.leaves().first()->info().fieldName, QString("2020__Y"));
    QCOMPARE(written(parser.rows()), QStringList("2020__Y=- | X=qlonglong:1 | Y=qlonglong:2"));
    QCOMPARE(parser.rows().at(0).at(2).valueType, QString("String"));
}

SUBJECT_TEST_MAIN(TestParser)
#include "tst_parser.moc"
