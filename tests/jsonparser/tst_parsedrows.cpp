#include "parserdocument.h"
#include "subjecttest.h"

#include "expression/expressionparse.h"
#include "jsonparser/tfcaption.h"
#include "jsonparser/tfjsonparser.h"
#include "jsonparser/tfobjectviewconfigtable.h"
#include "jsonparser/tfunboundexpression.h"
#include "jsonparser/tfviewconfigtable.h"
#include "mulittable/tfheaderdatastruct.h"
#include "records/tfrowstore.h"

#include <QRegExp>
#include <QRegularExpression>

#include <random>

using TFSubject::TFJsonParser;

namespace {
/// Every field of every cell.
QString inFull(const RowData &row)
{
    QStringList cells;
    for (const auto &c : row) {
        cells.append(line(c.fieldName, c.valueType, c.textAlignment, c.url, c.formatString, c.prevUnitFactor,
                          c.showUnitFactor, c.secuId, c.baseShowUnitFactor, c.unitCategory, c.columnType,
                          c.captionShowType, written(c.value)));
    }
    return cells.join(" | ");
}

/// The rows as told, cell by cell from the maps.
QList<RowData> plainRows(const QJsonArray &maps, const TFJsonParser &parser,
                         const QList<TFTreeStruct *> &leaves)
{
    ExpressionParse expressions;
    QList<RowData> rows;
    for (const QJsonValue &element : maps) {
        const QVariantMap map = element.toObject().toVariantMap();
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

const QJsonArray Values =
    QJsonDocument::fromJson(
        R"([null, true, 1562.515625, -4294967296, "999", "股票", [1, "x", {"k": 2.5}], {"k": [null]}, 1e300])")
        .array();
} // namespace

class TestParsedRows : public SubjectTest
{
    Q_OBJECT

private slots:
    void rowsEqualThePlainOnes();
    void aggregateCellsFollowTheirOddRules_data();
    void aggregateCellsFollowTheirOddRules();
    void handWrittenMatchersEqualTheirPatterns();
};

void TestParsedRows::rowsEqualThePlainOnes()
{
    // Keys that JSON and a map sort differently, keys of columns and others, rows of changing keys.
    const QStringList names = {
        "SECU_ID", "A",   "b", "元", QString::fromUtf8("\xf0\x9f\x98\x80"), QString(QChar(0xff21)),
        "",        "x y", "Z"};
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        QJsonArray columns;
        for (unsigned i = random() % 9; i > 0; --i) {
            const QString &name = names.at(int(random() % 9));
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
                    row.insert(name, Values.at(int(random() % 9)));
            }
            rows.append(random() % 10 ? QJsonValue(row) : QJsonValue(5));
        }
        TFTreeStruct header("");
        TFJsonParser parser;
        allowWarnings("cant find field name: \"\"");
        parser.parseConfig(document(columns, rows), &header);

        const QList<RowData> plain = plainRows(rows, parser, header.leaves());
        const QList<RowData> built = parser.rows();
        QCOMPARE(built.size(), plain.size());
        const TFRowStore packed = TFRowStore::fromRows(plain);
        QCOMPARE(packed.rowCount(), plain.size());
        for (int i = 0; i < plain.size(); ++i) {
            QCOMPARE(inFull(built.at(i)), inFull(plain.at(i)));
            QCOMPARE(inFull(packed.row(i)), inFull(plain.at(i)));
        }
    }
}

void TestParsedRows::aggregateCellsFollowTheirOddRules_data()
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

void TestParsedRows::aggregateCellsFollowTheirOddRules()
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

void TestParsedRows::handWrittenMatchersEqualTheirPatterns()
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
        const bool isAggregate = aggregate.indexIn(text) >= 0;
        QCOMPARE(line(expression.isAggregate(), expression.function(), expression.suffix()),
                 isAggregate ? line(true, aggregate.cap(2), aggregate.cap(4)) : line(false, "", ""));
    }
}

SUBJECT_TEST_MAIN(TestParsedRows)
#include "tst_parsedrows.moc"
