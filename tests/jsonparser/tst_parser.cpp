#include "subjecttest.h"

#include "expression/expressionparse.h"
#include "jsonparser/tfcaption.h"
#include "jsonparser/tfdatajsontable.h"
#include "jsonparser/tfjsonparser.h"
#include "jsonparser/tfobjectviewconfigtable.h"
#include "jsonparser/tfsummaryjsontable.h"
#include "jsonparser/tfunboundexpression.h"
#include "jsonparser/tfviewconfigtable.h"
#include "mulittable/tfheaderdatastruct.h"
#include "records/tfdecimalformat.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegExp>

#include <random>

using TFSubject::TFJsonParser;

namespace {
QString text(const QJsonValue &value)
{
    return QString::fromUtf8(value.isArray() ? QJsonDocument(value.toArray()).toJson()
                                             : QJsonDocument(value.toObject()).toJson());
}

QJsonObject column(const QString &name, const QJsonObject &more = {})
{
    QJsonObject field{
        {"FieldName", name}, {"Caption", name}, {"ValueType", "Decimal"}, {"Visible", true}, {"Width", 100}};
    for (auto it = more.begin(); it != more.end(); ++it)
        field.insert(it.key(), it.value());
    return field;
}

/// A document whose columns have their settings in both tables.
QJsonObject document(const QJsonArray &columns, const QJsonArray &rows, const QJsonArray &properties = {})
{
    QJsonArray view{QJsonObject{
        {"obj_vw_id", 260}, {"prop_typ", "EXTEND"}, {"prop_name", "Bands"}, {"ext_prop_val", text(columns)}}};
    for (const QJsonValue &property : properties)
        view.append(property);
    QJsonArray fields;
    for (const QJsonValue &field : columns)
        fields.append(QJsonObject{{"obj_prop_name", field.toObject().value("FieldName")},
                                  {"vw_sts", "1"},
                                  {"ots_cfg", text(field)}});
    return {{"Data", rows}, {"View_Config", view}, {"Object_View_Config", fields}};
}

QString written(const QVariant &value)
{
    return value.isValid() ? QString("%1:%2").arg(value.typeName(), value.toString()) : "-";
}

/// "name=type:value" of each cell.
QString written(const RowData &row)
{
    QStringList cells;
    for (const auto &cell : row)
        cells.append(cell.fieldName + '=' + written(cell.value));
    return cells.join(" | ");
}

QStringList written(const QList<RowData> &rows)
{
    QStringList lines;
    for (const RowData &row : rows)
        lines.append(written(row));
    return lines;
}

/// Every field of every cell.
QString inFull(const RowData &row)
{
    QStringList cells;
    for (const auto &c : row) {
        cells.append(QStringList({c.fieldName, c.valueType, QString::number(c.textAlignment), c.url,
                                  c.formatString, QString::number(c.prevUnitFactor),
                                  QString::number(c.showUnitFactor), QString::number(c.secuId, 'g', 17),
                                  QString::number(c.baseShowUnitFactor), QString::number(c.unitCategory),
                                  c.columnType, QString::number(c.captionShowType), written(c.value)})
                         .join(','));
    }
    return cells.join(" | ");
}

/// The rows as told, cell by cell from the maps.
QList<RowData> plainRows(const TFJsonParser &parser, const QList<TFTreeStruct *> &leaves,
                         ExpressionParse &expressions)
{
    QList<RowData> rows;
    const auto maps = parser.dataMaps();
    for (const QVariantMap &map : maps) {
        RowData row;
        QStringList fields;
        for (const TFTreeStruct *leaf : leaves) {
            const HeaderFieldInfo &info = leaf->info();
            TFTableModelData::tagCellValue cell{info.fieldName,           info.valueType,
                                                info.textAlignment,       info.url,
                                                info.formatString,        info.prevUnitFactor,
                                                info.showUnitFactor,      map.value("SECU_ID").toDouble(),
                                                info.showUnitFactor,      info.unitCategory,
                                                info.columnType,          info.captionShowType,
                                                map.value(info.fieldName)};
            fields.append(info.fieldName);
            if (info.valueType.toLower() == "decimal" && !info.unboundExpression.isEmpty())
                expressions.parse(info.unboundExpression, cell.value, map);
            row.append(cell);
        }
        for (auto it = map.begin(); it != map.end(); ++it) {
            if (fields.contains(it.key()))
                continue;
            TFTableModelData::tagCellValue cell;
            cell.fieldName = it.key();
            cell.value = it.value();
            cell.valueType = parser.objectViewConfigTable()->headerFieldInfo(it.key()).valueType;
            row.append(cell);
        }
        rows.append(row);
    }
    return rows;
}

QJsonValue randomValue(std::mt19937 &random)
{
    switch (random() % 9) {
    case 0:
        return QJsonValue();
    case 1:
        return bool(random() % 2);
    case 2:
        return double(random() % 100000) / 64;
    case 3:
        return qint64(random()) * (random() % 2 ? 1 : -1);
    case 4:
        return QString::number(random() % 1000);
    case 5:
        return QStringLiteral("股票 %1").arg(random() % 10);
    case 6:
        return QJsonArray{1, QString("x"), QJsonObject{{"k", 2.5}}};
    case 7:
        return QJsonObject{{"k", QJsonArray{QJsonValue()}}};
    default:
        return 1e300;
    }
}
} // namespace

class TestParser : public SubjectTest
{
    Q_OBJECT

private slots:
    void documentWithoutKnownKeysIsRead();
    void nothingToReadIsRefused();
    void secondDocumentReplacesEveryTable();
    void childViewsAreForwarded();
    void rowsEqualThePlainOnes();
    void jsonNumbersKeepTheirVariantTypes();
    void rowsOfMapsEqualRowsOfJson();
    void laterPageReplacesRowsAndSummary();
    void clearedDataLeavesTheConfiguration();
    void captionsAndWidthsComeFromTheObject();
    void captionExpressionSeesTheFilters();
    void crossTableTakesItsColumnsFromTheSummary();
    void aggregateCellsFollowTheirOddRules_data();
    void aggregateCellsFollowTheirOddRules();
    void computedColumnsReadDeliveredValues();
    void handWrittenMatchersEqualTheirPatterns();
    void exportGivesPlainValues_data();
    void exportGivesPlainValues();
    void exportRefusesBadReplies_data();
    void exportRefusesBadReplies();
    void precisionComesFromTheFormatCode_data();
    void precisionComesFromTheFormatCode();
    void packedRowsComeBackUnchanged();
};

void TestParser::documentWithoutKnownKeysIsRead()
{
    TFTreeStruct header("");
    TFJsonParser parser;
    QVERIFY(parser.parseConfig(QJsonObject{{"Object", QJsonArray{1}}, {"Object_Property", QJsonArray{1}}},
                               &header));
    QVERIFY(!header.hasChildren() && parser.rows().isEmpty() && parser.dataMaps().isEmpty());
    QVERIFY(!parser.viewConfigTable() && !parser.objectViewConfigTable() && !parser.summaryTable());
    QCOMPARE(QString("%1 %2 %3 %4")
                 .arg(parser.rowCount())
                 .arg(parser.pageIndex())
                 .arg(parser.pageSize())
                 .arg(parser.frozenCount()),
             QString("-1 -1 -1 0"));
    QVERIFY(parser.orderProperty().first.isNull() && parser.orderProperty().second.isNull());

    QVERIFY(parser.parseConfig(QJsonObject{{"Summary", QJsonArray()}, {"Data", 5}}, &header));
    QCOMPARE(parser.rowCount(), 0);
    QVERIFY(!parser.hasRawRows());
    QVERIFY(parser.parseConfig(QJsonArray{1}, &header));
}

void TestParser::nothingToReadIsRefused()
{
    TFTreeStruct header("");
    TFJsonParser parser;
    QVERIFY(parser.parseConfig(document({column("A")}, {QJsonObject{{"A", 1}}}), &header));
    QVERIFY(!parser.parseConfig(QJsonValue(QJsonValue::Undefined), &header));
    QVERIFY(!parser.parseConfig(QJsonObject(), nullptr));
    QCOMPARE(written(parser.rows()), QStringList("A=qlonglong:1"));
}

void TestParser::secondDocumentReplacesEveryTable()
{
    TFTreeStruct header("");
    TFJsonParser parser;
    QJsonObject first = document({column("A")}, {QJsonObject{{"A", 1}}});
    first.insert("Object_View", QJsonArray{QJsonObject{{"obj_vw_name", "name"}}});
    QVERIFY(parser.parseConfig(first, &header));
    QCOMPARE(parser.objectViewName(), QString("name"));
    QVERIFY(parser.parseConfig(document({column("B")}, {}), &header));
    QVERIFY(parser.objectViewName().isEmpty() && !parser.hasRawRows() && parser.rows().isEmpty());
    QCOMPARE(header.leafCaptions(), QStringList("B"));
}

void TestParser::childViewsAreForwarded()
{
    TFTreeStruct header("");
    TFJsonParser parser;
    QSignalSpy spy(&parser, &TFJsonParser::signalSubTableJsonData);
    const QJsonObject children{
        {"prop_typ", "EXTEND"},
        {"prop_name", "childView"},
        {"ext_prop_val", R"([{"ObjShowName":"7","Caption":"c","Propertyparams":"A=B"}])"}};
    parser.parseConfig(document({}, {}, {children}), &header);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toLongLong(), 7LL);
    QCOMPARE(parser.childViewParams(7), QString("A=B"));
}

void TestParser::rowsEqualThePlainOnes()
{
    // Keys that JSON and a map sort differently, keys of columns and others, rows of changing keys.
    const QStringList names = {
        "SECU_ID", "A",   "b", "元", QString::fromUtf8("\xf0\x9f\x98\x80"), QString(QChar(0xff21)),
        "",        "x y", "Z"};
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        QJsonArray columns;
        for (const QString &name : names) {
            if (random() % 2)
                columns.append(column(name, {{"Url", "u" + name},
                                             {"ShowUnitFactor", int(random() % 3)},
                                             {"TextAlignment", int(random() % 4)},
                                             {"UnboundExpression", random() % 5 ? "" : "[A]*2"},
                                             {"ValueType", random() % 3 ? "Decimal" : "String"}}));
        }
        QJsonArray rows;
        for (int i = 0; i < 20; ++i) {
            QJsonObject row;
            for (const QString &name : names) {
                if (random() % 8)
                    row.insert(name, randomValue(random));
            }
            rows.append(random() % 10 ? QJsonValue(row) : QJsonValue(5));
        }
        TFTreeStruct header("");
        TFJsonParser parser;
        allowWarnings("cant find field name: \"\"");
        parser.parseConfig(document(columns, rows), &header);

        ExpressionParse expressions;
        const QList<RowData> plain = plainRows(parser, header.leaves(), expressions);
        const QList<RowData> built = parser.rows();
        QCOMPARE(built.size(), plain.size());
        for (int i = 0; i < plain.size(); ++i)
            QCOMPARE(inFull(built.at(i)), inFull(plain.at(i)));
    }
}

void TestParser::jsonNumbersKeepTheirVariantTypes()
{
    const QByteArray page =
        R"({"Data":[{"A":1,"B":1.0,"C":1.5,"D":9007199254740993,"E":1e3,"F":99999999999999999999,"G":-0,"H":null,"I":"1","J":true}]})";
    TFJsonParser parser;
    QVERIFY(parser.parseData(QJsonValue(QJsonDocument::fromJson(page).object())));
    const QVariantMap map = parser.dataMaps().at(0);
    QStringList cells;
    for (auto it = map.begin(); it != map.end(); ++it)
        cells.append(it.key() + '=' + written(it.value()));
    QCOMPARE(written(parser.rows()), QStringList(cells.join(" | ")));
}

void TestParser::rowsOfMapsEqualRowsOfJson()
{
    TFDataJsonTable table;
    table.initWith(QJsonArray{QJsonObject{{"A", 1}}, 7, QJsonObject{}});
    QCOMPARE(table.rows(), (QList<QVariantMap>{{{"A", 1}}, {}, {}}));
    table.setRows({{{"B", 2.5}}});
    QCOMPARE(table.rowCount(), 1);
    QCOMPARE(table.rows(), (QList<QVariantMap>{{{"B", 2.5}}}));
    table.initWith(QJsonValue("x"));
    QCOMPARE(table.rowCount(), 0);
}

void TestParser::laterPageReplacesRowsAndSummary()
{
    TFTreeStruct header("");
    TFJsonParser parser;
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
    QCOMPARE(QString("%1 %2 %3").arg(parser.rowCount()).arg(parser.pageIndex()).arg(parser.pageSize()),
             QString("40 2 200"));

    QVERIFY(parser.parseData(
        QJsonValue(QJsonObject{{"Summary", QJsonArray{QJsonObject{{"Item", "pindex"}, {"value", 3}}}}})));
    QCOMPARE(parser.rows().size(), 2);
    QCOMPARE(parser.rowCount(), 40);
}

void TestParser::clearedDataLeavesTheConfiguration()
{
    TFTreeStruct header("");
    TFJsonParser parser;
    parser.clearData();
    parser.parseConfig(document({column("A")}, {QJsonObject{{"A", 1}}}), &header);
    const TFRowStore handedOver = parser.rowStore();
    QVERIFY(parser.hasRawRows());
    parser.clearData();
    QVERIFY(!parser.hasRawRows() && parser.rows().isEmpty() && parser.dataMaps().isEmpty());
    QVERIFY(parser.viewConfigTable());
    QCOMPARE(written(handedOver.rows()), QStringList("A=qlonglong:1"));
}

void TestParser::captionsAndWidthsComeFromTheObject()
{
    QJsonObject doc = document({column("A"), column("B"), column("C")}, {});
    doc.insert(
        "Object_View_Config",
        QJsonArray{QJsonObject{{"obj_prop_name", "A"},
                               {"vw_sts", "1"},
                               {"ots_cfg",
                                text(QJsonObject{{"FieldName", "A"}, {"Caption", "object"}, {"Width", 70}})}},
                   QJsonObject{{"obj_prop_name", "B"},
                               {"vw_sts", "2"},
                               {"ots_cfg", text(QJsonObject{{"FieldName", "B"}, {"Width", 200}})}}});
    TFTreeStruct header("");
    TFJsonParser parser;
    expectWarning("cant find field name: \"C\"");
    parser.parseConfig(doc, &header);
    QStringList columns;
    for (const TFTreeStruct *leaf : header.leaves())
        columns.append(QString("%1 %2").arg(leaf->displayCaption()).arg(leaf->info().width));
    QCOMPARE(columns, QStringList({"object 70", "C 0"}));
}

void TestParser::captionExpressionSeesTheFilters()
{
    const QJsonObject filters{
        {"prop_typ", "EXTEND"},
        {"prop_name", "filters"},
        {"ext_prop_val", text(QJsonArray{QJsonObject{{"Caption", "年"}, {"DefualtValue", "=2020"}}})}};
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

void TestParser::aggregateCellsFollowTheirOddRules_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("value");
    const QString years = R"({"2019__ROE":2,"2020__ROE":"3","NAME":"text"})";
    testRow("sum counts text as 0", "SUM([ROE])", years, "double:5");
    testRow("sum leaves the field itself out", "sum[ROE]", R"({"roe":100,"2019__ROE":2})", "double:2");
    testRow("suffix with a mark counts though it equals", "SUM([a__ROE])", R"({"x__a__ROE":1,"A__ROE":2})",
            "double:1");
    testRow("sum of nothing", "SUM([ROE])", "{}", "double:0");
    testRow("average is matched and has no computation", "AVERAGE([ROE])", years, "-");
    testRow("avgerage is a formula", "AVGERAGE([ROE])", years, "-");
    testRow("product to the power of the count", "GEOMEAN([ROE])", R"({"a":2,"b":3})", "double:36");
    testRow("product of nothing", "GEOMEAN([ROE])", "{}", "-");
    testRow("largest has no implicit 0", "MAX([ROE])", R"({"a":-2,"b":-3})", "double:-2");
    testRow("largest of nothing", "MAX([ROE])", R"({"ROE":1})", "-");
    testRow("no suffix", "SUM([])", years, "-");
    testRow("text around it is ignored", "1+Max([ROE])*5", R"({"a":4})", "double:4");
    testRow("a formula", "[2019__ROE]*[2020__ROE]", years, "int:6");
}

void TestParser::aggregateCellsFollowTheirOddRules()
{
    QFETCH(QString, expression);
    QFETCH(QString, row);
    const QJsonArray rows{QJsonDocument::fromJson(row.toUtf8()).object()};
    TFTreeStruct header("");
    TFJsonParser parser;
    parser.parseConfig(document({column("C", {{"UnboundExpression", expression}}),
                                 column("D", {{"UnboundExpression", expression}, {"ValueType", "Double"}})},
                                rows),
                       &header);
    QTEST(written(parser.rows().at(0).at(0).value), "value");
    QVERIFY(!parser.rows().at(0).at(1).value.isValid());
    QCOMPARE(written(TFAggregate::compute("Avgerage", {1, 2})), QString("double:1.5"));
}

void TestParser::computedColumnsReadDeliveredValues()
{
    TFTreeStruct header("");
    TFJsonParser parser;
    parser.parseConfig(document({column("A", {{"UnboundExpression", "[A]+1"}}),
                                 column("B", {{"UnboundExpression", "[A]+10"}}), column("A")},
                                {QJsonObject{{"A", 1}}, QJsonObject{{"A", 2}, {"B", 7}}}),
                       &header);
    QCOMPARE(written(parser.rows()),
             QStringList({"A=int:2 | B=int:11 | A=int:2", "A=int:3 | B=int:12 | A=int:3"}));
}

void TestParser::handWrittenMatchersEqualTheirPatterns()
{
    const QStringList pieces = {"{", "}", "a", "\n", "SUM", "max", "[", "]", "(", ")", "AVERAGE", "x"};
    std::mt19937 random(3);
    QRegExp aggregate("(.*)(SUM|AVERAGE|GEOMEAN|MAX)(\\(?)\\[(.*)\\](\\)?)(.*)", Qt::CaseInsensitive);
    QRegExp braces("\\{.*\\}");
    QRegExp capture(".*\\{(.*)\\}.*");
    for (int round = 0; round < 20000; ++round) {
        QString text;
        for (unsigned i = 0; i < random() % 12; ++i)
            text += pieces.at(int(random() % unsigned(pieces.size())));

        QCOMPARE(TFCaption::hasExpression(text), braces.indexIn(text) >= 0);
        if (TFCaption::hasExpression(text)) {
            capture.indexIn(text);
            QVERIFY2(TFCaption::expression(text) == capture.cap(1), qPrintable(text));
            QCOMPARE(TFCaption::replaced(text, "-"),
                     QString(text).replace(QRegularExpression("\\{.*\\}"), "-"));
        }
        const TFUnboundExpression expression(text);
        QVERIFY2(expression.isAggregate() == (aggregate.indexIn(text) >= 0), qPrintable(text));
        if (expression.isAggregate()) {
            QVERIFY2(expression.function() == aggregate.cap(2), qPrintable(text));
            QVERIFY2(expression.suffix() == aggregate.cap(4), qPrintable(text));
        }
    }
}

void TestParser::exportGivesPlainValues_data()
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

void TestParser::exportGivesPlainValues()
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

void TestParser::exportRefusesBadReplies_data()
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

void TestParser::exportRefusesBadReplies()
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

void TestParser::precisionComesFromTheFormatCode_data()
{
    QTest::addColumn<int>("precision");
    for (int i = 0; i <= 20; ++i)
        testRow(qPrintable(QString(i % 2 ? "n%1" : "N%1").arg(i)), i);
    for (const char *other :
         {"", "n", "n21", "n05", "n00", "n1x", "nn", "x2", "n-1", "n200", "#,##0.0", "n4 "})
        testRow(other, 2);
}

void TestParser::precisionComesFromTheFormatCode()
{
    QTEST(TFDecimalFormat::precision(QTest::currentDataTag()), "precision");
}

void TestParser::packedRowsComeBackUnchanged()
{
    const auto cell = [](const QString &name, double secuId, const QVariant &value) {
        TFTableModelData::tagCellValue cell;
        cell.fieldName = name;
        cell.secuId = secuId;
        cell.value = value;
        return cell;
    };
    const QList<RowData> rows = {{cell("a", 5, 1), cell("b", 5, "x"), cell("c", 0, 2)},
                                 {cell("a", 6, 3), cell("b", 6, QVariant()), cell("c", 0, 4)},
                                 {cell("a", 6, 3), cell("b", 7, 1), cell("c", 6, 4)},
                                 {},
                                 {cell("z", 0, 1)}};
    const TFRowStore store = TFRowStore::fromRows(rows);

    QCOMPARE(store.rowCount(), rows.size());
    for (int i = 0; i < rows.size(); ++i)
        QCOMPARE(inFull(store.row(i)), inFull(rows.at(i)));
    QCOMPARE(store.cellCount(-1) + store.cellCount(5), 0);
}

SUBJECT_TEST_MAIN(TestParser)
#include "tst_parser.moc"
