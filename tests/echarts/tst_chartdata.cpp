#include "subjecttest.h"

#include "chartjson.h"
#include "echarts/tfchartdatamessage.h"
#include "echarts/tfchartdatanumbers.h"
#include "echarts/tfchartdatarows.h"
#include "echarts/tfchartdataseries.h"
#include "records/tfrounding.h"

#include <cmath>
#include <cstring>
#include <random>

using namespace TFChartData;

class TestChartData : public SubjectTest
{
    Q_OBJECT

private slots:
    void patternSelectsRows_data();
    void patternSelectsRows();
    void axisAndViewDecideTheOrder_data();
    void axisAndViewDecideTheOrder();
    void crossColumnsBecomeSeries_data();
    void crossColumnsBecomeSeries();
    void formatRoundsThePoint_data();
    void formatRoundsThePoint();
    void configurationAndRowsMakeSeries_data();
    void configurationAndRowsMakeSeries();
    void dateAxisIsWrittenInLocalTime();
    void typeAndAxisShapeTheMixedMessage_data();
    void typeAndAxisShapeTheMixedMessage();
    void mixedMessageLeavesHiddenSeriesOut();
    void piesStandSideBySide();
    void pivotPieTurnsItsSlices();
    void nothingToDrawGivesNoPieMessage();
    void numbersRoundAndReadAsTheToolkitWritesThem();
};

namespace {
const char kThree[] = "[{'X':'a','V':1,'W':4},{'X':'b','V':2,'W':5},{'X':'c','V':3,'W':6}]";

ChartSet built(const QString &rows, const QString &config)
{
    ChartSet set;
    buildSeries(set, ChartJson::rows(rows), ChartJson::config(config), DateLabels::Always);
    return set;
}

QString column(const Rows &rows, const QString &field)
{
    QStringList texts;
    for (const QVariantMap &row : rows)
        texts << row.value(field, "-").toString();
    return texts.join(' ');
}

QJsonObject message(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}
} // namespace

void TestChartData::patternSelectsRows_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("pattern");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("expected");

    QTest::newRow("one row is never cut") << 1 << 3 << 0 << "1";
    QTest::newRow("a step past the end cuts nothing") << 3 << 3 << 5 << "1 2 3";
    QTest::newRow("all rows need no step") << 3 << 1 << 0 << "1 2 3";
    QTest::newRow("first rows without a step") << 3 << 2 << 0 << "";
    QTest::newRow("first rows") << 7 << 2 << 3 << "1 2 3";
    QTest::newRow("every third row") << 7 << 3 << 3 << "3 6";
    QTest::newRow("last rows") << 7 << 4 << 3 << "5 6 7";
    QTest::newRow("unknown pattern") << 3 << 9 << 2 << "";
    QTest::newRow("negative step") << 3 << 4 << -1 << "";
}

void TestChartData::patternSelectsRows()
{
    QFETCH(int, count);
    QFETCH(int, pattern);
    QFETCH(int, step);
    Rows rows;
    for (int i = 1; i <= count; ++i)
        rows.append({{"X", i}});
    Config config;
    config.XDisplayDataPattern = pattern;
    config.XDisplayStep = step;

    QTEST(column(selectRows(rows, config), "X"), "expected");
}

void TestChartData::axisAndViewDecideTheOrder_data()
{
    QTest::addColumn<QString>("axis");
    QTest::addColumn<bool>("isSwitched");
    QTest::addColumn<bool>("isTurned");
    QTest::addColumn<bool>("isOrder");
    QTest::addColumn<bool>("isGetChartData");
    QTest::addColumn<QString>("order");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const char *axis, bool isSwitched, bool isTurned, bool isOrder,
                        bool isGetChartData, const char *order, const char *expected) {
        QTest::newRow(name) << axis << isSwitched << isTurned << isOrder << isGetChartData << order
                            << expected;
    };
    row("text axis", "String", false, false, false, true, "", "2 10 - 1");
    row("turned text axis", "String", false, true, false, true, "", "10 2 1 -");
    row("date axis", "DateTime", false, false, false, true, "", "- 1 2 10");
    row("date axis of the main table's rows", "DateTime", false, false, false, false, "", "10 2 1 -");
    row("number axis", "Decimal", false, false, false, true, "", "10 2 1 -");
    row("switched axes", "DateTime", true, false, false, true, "", "2 10 - 1");
    row("ordered by the service", "DateTime", false, false, true, true, "{'A':1}", "2 10 - 1");
    row("first field of the order", "String", false, false, true, false, "{'B':1,'A':1}", "1 - 10 2");
    row("its direction", "String", false, false, true, false, "{'A':-1}", "2 10 - 1");
    row("order without a field", "DateTime", false, false, true, false, "{}", "10 2 1 -");
}

void TestChartData::axisAndViewDecideTheOrder()
{
    QFETCH(QString, axis);
    QFETCH(QString, order);
    QFETCH(bool, isSwitched);
    QFETCH(bool, isTurned);
    QFETCH(bool, isOrder);
    QFETCH(bool, isGetChartData);
    ViewTraits view;
    view.isOrder = isOrder;
    view.isGetChartData = isGetChartData;
    if (!order.isEmpty())
        view.order = {"order", ChartJson::parse(order).object()};
    Config config;
    config.XFieldName = "X";
    config.XValueType = axis;
    config.IsSwitchXAxis = isSwitched;
    config.IsTurnXAxis = isTurned;
    const Rows rows = ChartJson::rows("[{'X':2,'A':4},{'X':10,'A':3},{'A':2},{'X':1,'A':1}]");

    QTEST(column(orderRows(rows, config, view), "X"), "expected");
}

void TestChartData::crossColumnsBecomeSeries_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("entries");
    QTest::addColumn<QString>("expected");

    QTest::newRow("groups") << "[{'A__X':1,'B__X':2,'D':3}]"
                            << "[{'FieldName':'X','LegendLable':'L'}]"
                            << "A__X AL, B__X BL";
    QTest::newRow("group before its own column") << "[{'A__x':1,'x':2}]"
                                                 << "[{'FieldName':'x','LegendLable':'L'}]"
                                                 << "A__x AL";
    QTest::newRow("plain column before its groups") << "[{'X':1,'a__X':2}]"
                                                    << "[{'FieldName':'X','LegendLable':'L'}]"
                                                    << "X L, a__X aL";
    QTest::newRow("no column") << "[{'A__X':1}]"
                               << "[{'FieldName':'Y'},{'FieldName':'X'}]"
                               << "A__X A";
    QTest::newRow("fields with case") << "[{'A__x':1}]"
                                      << "[{'FieldName':'X'}]"
                                      << "";
    QTest::newRow("no rows") << "[]"
                             << "[{'FieldName':'X','LegendLable':'L'}]"
                             << "X L";
    QTest::newRow("first row without columns") << "[{},{'A__X':1}]"
                                               << "[{'FieldName':'X'}]"
                                               << "X ";
}

void TestChartData::crossColumnsBecomeSeries()
{
    QFETCH(QString, rows);
    QFETCH(QString, entries);

    const Config config =
        expandCross(ChartJson::rows(rows), ChartJson::config("{'ChartDataConfigs':" + entries + "}"));

    QStringList texts;
    for (const SeriesConfig &entry : config.ChartDataConfigs)
        texts << entry.FieldName + ' ' + entry.LegendLable;
    QTEST(texts.join(", "), "expected");
}

void TestChartData::formatRoundsThePoint_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("format");
    QTest::addColumn<double>("expected");

    QTest::newRow("whole number") << 3.0 << "" << 3.0;
    QTest::newRow("fraction") << 2.345678 << "" << 2.35;
    QTest::newRow("fraction that six digits do not show") << 1234567.25 << "N" << 1234567.25;
    QTest::newRow("large fraction") << 123456.789 << "" << 123456.789;
    QTest::newRow("power of ten") << 12345678.125 << "" << 12345678.13;
    QTest::newRow("three decimals") << 1.23456 << "N3" << 1.235;
    QTest::newRow("small letter") << 1.26 << "n1" << 1.3;
    QTest::newRow("comma") << 1.23456 << ",2" << 1.23;
    QTest::newRow("two digits do not match") << 1.23456 << "N12" << 1.23456;
}

void TestChartData::formatRoundsThePoint()
{
    QFETCH(double, value);
    QFETCH(QString, format);
    QFETCH(double, expected);
    QCOMPARE(roundedValue(value, format), expected);
}

void TestChartData::configurationAndRowsMakeSeries_data()
{
    QTest::addColumn<QString>("config");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const char *settings, const char *series, const char *rows,
                        const char *expected) {
        QTest::newRow(name) << QString("{'XFieldName':'X',%1'ChartDataConfigs':[%2]}").arg(settings, series)
                            << rows << expected;
    };
    const char two[] = "{'FieldName':'V','LegendLable':'v'},{'FieldName':'W','LegendLable':'w'}";
    const char scaled[] = "{'FieldName':'V','LegendLable':'v'},{'FieldName':'W','LegendLable':'w',"
                          "'UnitCategory':2,'PrevUnitFactor':10,'ShowUnitFactor':0.5}";
    row("columns", "", two, kThree, "a b c: v 1 2 3 | w 4 5 6");
    row("turned axis", "'IsTurnXAxis':true,", two, kThree, "c b a: v 3 2 1 | w 6 5 4");
    row("unit in the name", "", "{'FieldName':'V','LegendLable':'v','ShowUnit':'亿元'}", kThree,
        "a b c: v(亿元) 1 2 3");
    row("references are filled in the first name alone", "",
        "{'LegendLable':'${X}-${Z}-${V}${X}'},{'LegendLable':'${X}'}", kThree,
        "a b c: a--1a 0 0 0 | ${X} 0 0 0");
    row("scaled", "", scaled, kThree, "a b c: v 1 2 3 | w 80 100 120");
    row("category -1 is not scaled", "",
        "{'FieldName':'V','UnitCategory':-1,'PrevUnitFactor':10,'ShowUnitFactor':1}", kThree,
        "a b c:  1 2 3");
    row("factor 0 does not divide", "",
        "{'FieldName':'V','UnitCategory':2,'PrevUnitFactor':10,'ShowUnitFactor':0}", kThree, "a b c:  1 2 3");
    row("texts and holes read as 0", "", two, "[{'X':'a','V':'1.5','W':'n/a'},{'X':'b','V':null}]",
        "a b: v 1.5 0 | w 0 0");
    row("no label text, no chart", "", two, "[{'V':1},{'X':'','V':2}]", ": ");
    row("one label text is enough", "", two, "[{'V':1},{'X':'b','V':2}]", " b: v 1 2 | w 0 0");
    row("rows", "'IsSwitchXAxis':true,'IsTurnXAxis':true,", two, kThree, "v w: a 1 4 | b 2 5 | c 3 6");
    row("rows read a scaled point from the first field", "'IsSwitchXAxis':true,", scaled, kThree,
        "v w: a 1 20 | b 2 40 | c 3 60");
    row("rows without entries", "'IsSwitchXAxis':true,", "", kThree, ": ");
    row("pivot pie", "'IsSwitchXAxis':true,'ChartType':'PIE',", two, kThree,
        "a b c: v 1 | w 4 | v 2 | w 5 | v 3 | w 6");
    row("pivot pie without label texts", "'IsSwitchXAxis':true,'ChartType':'Pie',", two, "[{'V':1}]",
        ": v 1 | w 0");
}

void TestChartData::configurationAndRowsMakeSeries()
{
    QFETCH(QString, config);
    QFETCH(QString, rows);
    QTEST(ChartJson::text(built(rows, config)), "expected");
}

void TestChartData::dateAxisIsWrittenInLocalTime()
{
    // The tests run in the zone of Shanghai: 2020-01-31 and 2020-02-29, midnight.
    const Rows rows = ChartJson::rows("[{'X':1580400000000},{'X':1582905600000},{'X':'2020年'}]");
    const auto labels = [&rows](const QString &format, DateLabels dateLabels) {
        ChartSet set;
        buildSeries(set, rows,
                    ChartJson::config("{'XFieldName':'X','XValueType':'DateTime','ChartDataConfigs':[{}],"
                                      "'XItemNamesFormat':'" +
                                      format + "'}"),
                    dateLabels);
        return set.labels.join(' ');
    };
    QCOMPARE(labels("", DateLabels::Always), QString("2020/1/31 2020/2/29 1970/1/1"));
    QCOMPARE(labels("yyyy-MM", DateLabels::WhereIntegers), QString("2020-01 2020-02 2020年"));
}

void TestChartData::typeAndAxisShapeTheMixedMessage_data()
{
    QTest::addColumn<QString>("series");
    QTest::addColumn<QString>("expected");

    QTest::newRow("no type") << "{}"
                             << "{'data':[1],'name':'','type':'bar'}";
    QTest::newRow("type in another case") << "{'ChartType':'line'}"
                                          << "{'data':[1],'name':'','type':'bar'}";
    QTest::newRow("points") << "{'ChartType':'XYPlot'}"
                            << "{'data':[1],'name':'','type':'scatter'}";
    QTest::newRow("line") << "{'ChartType':'LineSymbols'}"
                          << "{'data':[1],'name':'','type':'line'}";
    QTest::newRow("smooth line") << "{'ChartType':'LineSmoothed'}"
                                 << "{'data':[1],'name':'','smooth':true,'type':'line'}";
    QTest::newRow("areas do not stack")
        << "{'ChartType':'AreaStacked','SetStackGroup':1}"
        << "{'areaStyle':{'normal':{}},'data':[1],'name':'','smooth':true,'type':'line'}";
    QTest::newRow("column") << "{'ChartType':'Column','SetStackGroup':1}"
                            << "{'barGap':0,'data':[1],'name':'','type':'bar'}";
    QTest::newRow("stacked column") << "{'ChartType':'ColumnStacked','SetStackGroup':2}"
                                    << "{'barGap':0,'data':[1],'name':'','stack':2,'type':'bar'}";
    QTest::newRow("stacked column without a group") << "{'ChartType':'ColumnStacked'}"
                                                    << "{'barGap':0,'data':[1],'name':'','type':'bar'}";
    QTest::newRow("right axis") << "{'ChartType':'Line','YShaftType':'Right'}"
                                << "{'data':[1],'name':'','type':'line','yAxisIndex':1}";
    QTest::newRow("right axis in another case") << "{'ChartType':'Line','YShaftType':'right'}"
                                                << "{'data':[1],'name':'','type':'line'}";
}

void TestChartData::typeAndAxisShapeTheMixedMessage()
{
    QFETCH(QString, series);
    QFETCH(QString, expected);
    QJsonObject entry = ChartJson::parse(series).object();
    entry.insert("FieldName", "V");
    const QString settings =
        QString("{'XFieldName':'X','ChartDataConfigs':[%1]}").arg(ChartJson::compact(entry));

    const QJsonObject sent =
        message(mixedMessage(built("[{'X':'a','V':1}]", settings), ChartJson::config(settings)));

    QCOMPARE(ChartJson::compact(sent.value("series")), '[' + expected + ']');
    QCOMPARE(sent.value("yAxis").toArray().size(), expected.contains("yAxisIndex") ? 2 : 1);
}

void TestChartData::mixedMessageLeavesHiddenSeriesOut()
{
    const QString settings =
        "{'XFieldName':'X','LegendPosition':3,'ChartDataConfigs':[{'FieldName':'V','LegendLable':'v',"
        "'IsVisible':false,'YShaftType':'Right'},{'FieldName':'W','LegendLable':'w','ChartType':'Line'}]}";

    const QJsonObject sent = message(mixedMessage(built(kThree, settings), ChartJson::config(settings)));

    QCOMPARE(
        ChartJson::compact(sent),
        QString("{'legend':[{'name':'w'}],'legendPostion':3,"
                "'series':[{'data':[4,5,6],'name':'w','type':'line'}],"
                "'xAxisLabel':{'interval':'auto','rotate':0},'xData':['a','b','c'],"
                "'yAxis':[{'position':'left','scale':true,'splitLine':{'show':false},'type':'value'}]}"));
}

void TestChartData::piesStandSideBySide()
{
    const QString settings = "{'XFieldName':'X','ChartType':'Pie','LegendPosition':1,'ChartDataConfigs':["
                             "{'FieldName':'V','LegendLable':'v'},{'FieldName':'W','IsVisible':false}]}";
    const QString rows = "[{'X':'a','V':1,'W':4},{'X':'b','V':2,'W':5}]";

    const QJsonObject sent = message(pieMessage(built(rows, settings), ChartJson::config(settings)));

    const QString pie =
        "{'center':['%1','50%'],'data':[%2],"
        "'label':{'emphasis':{'show':true},'normal':{'show':false}},'name':'%3','type':'pie'}";
    QCOMPARE(ChartJson::compact(sent.value("series")),
             '[' + pie.arg("33%", "{'name':'a','value':1},{'name':'b','value':2}", "v") + ',' +
                 pie.arg("66%", "{'name':'a','value':4},{'name':'b','value':5}", "") + ']');
    QCOMPARE(ChartJson::compact(sent.value("title").toArray().first()),
             QString("{'text':'v','textAlign':'center','textStyle':{'fontFamily':'微软雅黑','fontSize':12,"
                     "'fontWeight':100},'x':'33%','y':'2%'}"));
    QCOMPARE(ChartJson::compact(sent.value("legend")), QString("[{'name':'a'},{'name':'b'}]"));
    QCOMPARE(sent.value("axisShow"), QJsonValue(false));
    QCOMPARE(sent.value("legendPostion").toInt(), 1);
}

void TestChartData::pivotPieTurnsItsSlices()
{
    const QString settings = "{'XFieldName':'X','ChartType':'Pie','IsSwitchXAxis':true,'ChartDataConfigs':["
                             "{'FieldName':'V','LegendLable':'v'},{'FieldName':'W','LegendLable':'w'}]}";

    const QJsonObject sent = message(pivotPieMessage(built(kThree, settings), ChartJson::config(settings)));

    QStringList pies;
    const QJsonArray series = sent.value("series").toArray();
    for (const QJsonValue &pie : series)
        pies << pie["name"].toString() + ' ' + pie["center"][0].toString() + ' ' +
                    ChartJson::compact(pie["data"]);
    QCOMPARE(pies.join('\n'), QString("a 25% [{'name':'w','value':4},{'name':'v','value':1}]\n"
                                      "b 50% [{'name':'w','value':5},{'name':'v','value':2}]\n"
                                      "c 75% [{'name':'w','value':6},{'name':'v','value':3}]"));
    QSet<QString> legend;
    const QJsonArray names = sent.value("legend").toArray();
    for (const QJsonValue &entry : names)
        legend.insert(entry["name"].toString());
    QCOMPARE(legend, (QSet<QString>{"v", "w"}));
    QCOMPARE(names.size(), 2);
}

void TestChartData::nothingToDrawGivesNoPieMessage()
{
    ChartSet withoutLabels;
    withoutLabels.series.append(ChartSeries());
    QVERIFY(pieMessage({}, {}).isEmpty());
    QVERIFY(!pieMessage(withoutLabels, {}).isEmpty());
    QVERIFY(pivotPieMessage(withoutLabels, {}).isEmpty());
}

void TestChartData::numbersRoundAndReadAsTheToolkitWritesThem()
{
    std::mt19937_64 random(5);
    QList<double> numbers{0,    -0.0, qInf(),   -qInf(), qQNaN(), 1e300, 5e-324, 9007199254740993.0,
                          1e15, 1e6,  999999.5, 99999.95};
    for (int i = 0; i < 50000; ++i) {
        const double sign = random() % 2 ? 1 : -1;
        const auto digits = double(random() % 10000000);
        numbers << sign * digits / std::pow(10, random() % 12)
                << sign * (double(random() % 100000) + 0.5) / std::pow(10, random() % 8)
                << sign * std::ldexp(double(random()), int(random() % 160) - 130) << sign * digits / 1024
                << sign * (double(random() % 1000) + std::pow(10, -double(random() % 8)));
    }
    for (const double number : qAsConst(numbers)) {
        const int decimals = int(random() % 10);
        const double told = QString::number(number, 'f', decimals).toDouble();
        const double rounded = TFRounding::toDecimals(number, decimals);
        QVERIFY2(std::memcmp(&rounded, &told, sizeof told) == 0 || std::isnan(told),
                 qPrintable(QString("%1 to %2").arg(number, 0, 'g', 17).arg(decimals)));
        QVERIFY2(TFRounding::showsFraction(number) == QString::number(number).contains('.'),
                 qPrintable(QString::number(number, 'g', 17)));
    }

    QJsonArray array;
    for (const double number : qAsConst(numbers)) {
        array.append(number);
        array.append(QString::number(number, 'f', 2).toDouble());
    }
    QByteArray written = "before";
    QList<double> values;
    for (const QJsonValue &value : qAsConst(array))
        values.append(value.isNull() ? qQNaN() : value.toDouble());
    appendNumbers(written, values);
    QCOMPARE(written, "before" + QJsonDocument(array).toJson(QJsonDocument::Compact));
}

SUBJECT_TEST_MAIN(TestChartData)
#include "tst_chartdata.moc"
