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
    void patternSelectsRows();
    void axisAndViewDecideTheOrder();
    void crossColumnsBecomeSeries();
    void formatRoundsThePoint();
    void configurationAndRowsMakeSeries_data();
    void configurationAndRowsMakeSeries();
    void typeAndAxisShapeTheMixedMessage();
    void mixedMessageLeavesHiddenSeriesOut();
    void piesStandSideBySide();
    void pivotPieTurnsItsSlices();
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

/// What \a write makes of the \a settings and \a rows of a chart.
QJsonObject message(QByteArray (*write)(const ChartSet &, const Config &), const QString &rows,
                    const QString &settings)
{
    return QJsonDocument::fromJson(write(built(rows, settings), ChartJson::config(settings))).object();
}
} // namespace

void TestChartData::patternSelectsRows()
{
    const auto selected = [](int count, int pattern, int step) {
        Config config;
        config.XDisplayDataPattern = pattern;
        config.XDisplayStep = step;
        const Rows seven{{{"X", 1}}, {{"X", 2}}, {{"X", 3}}, {{"X", 4}}, {{"X", 5}}, {{"X", 6}}, {{"X", 7}}};
        return column(selectRows(seven.mid(0, count), config), "X");
    };
    QCOMPARE(selected(1, EveryNthRow, 0), QString("1"));
    QCOMPARE(selected(3, EveryNthRow, 5), QString("1 2 3"));
    QCOMPARE(selected(3, AllRows, 0), QString("1 2 3"));
    QCOMPARE(selected(3, FirstRows, 0), QString(""));
    QCOMPARE(selected(7, FirstRows, 3), QString("1 2 3"));
    QCOMPARE(selected(7, EveryNthRow, 3), QString("3 6"));
    QCOMPARE(selected(7, LastRows, 3), QString("5 6 7"));
    QCOMPARE(selected(3, 9, 2), QString(""));
    QCOMPARE(selected(3, EveryNthRow, -1), QString(""));
}

void TestChartData::axisAndViewDecideTheOrder()
{
    Config config;
    config.XFieldName = "X";
    const auto ordered = [&config](const char *axis, const ViewTraits &view) {
        config.XValueType = axis;
        const Rows rows = ChartJson::rows("[{'X':2,'A':4},{'X':10,'A':3},{'A':2},{'X':1,'A':1}]");
        return column(orderRows(rows, config, view), "X");
    };
    const auto order = [](const QString &fields) {
        return QPair<QString, QVariant>("order", ChartJson::parse(fields).object());
    };
    const QString asTheyStand = "2 10 - 1";
    const QString downwards = "10 2 1 -";
    QCOMPARE(ordered("String", {}), asTheyStand);
    QCOMPARE(ordered("DateTime", {}), QString("- 1 2 10"));
    QCOMPARE(ordered("DateTime", {false, false, {}}), downwards); // the main table's rows
    QCOMPARE(ordered("Decimal", {}), downwards);
    QCOMPARE(ordered("DateTime", {true, true, order("{'A':1}")}), asTheyStand); // as the service ordered
    QCOMPARE(ordered("String", {true, false, order("{'B':1,'A':1}")}), QString("1 - 10 2"));
    QCOMPARE(ordered("DateTime", {true, false, order("{'A':-1}")}), asTheyStand);
    QCOMPARE(ordered("DateTime", {true, false, order("{}")}), downwards);
    config.IsTurnXAxis = true;
    QCOMPARE(ordered("String", {}), downwards);
    config.IsSwitchXAxis = true;
    QCOMPARE(ordered("DateTime", {}), asTheyStand);
}

void TestChartData::crossColumnsBecomeSeries()
{
    const auto expanded = [](const QString &rows, const QString &entries) {
        QStringList texts;
        for (const SeriesConfig &entry :
             expandCross(ChartJson::rows(rows), ChartJson::config("{'ChartDataConfigs':" + entries + "}"))
                 .ChartDataConfigs)
            texts << entry.FieldName + ' ' + entry.LegendLable;
        return texts.join(", ");
    };
    const QString x = "[{'FieldName':'X','LegendLable':'L'}]";
    QCOMPARE(expanded("[{'A__X':1,'B__X':2,'D':3}]", x), QString("A__X AL, B__X BL"));
    QCOMPARE(expanded("[{'A__X':1,'X':2}]", x), QString("A__X AL")); // a group before its own column
    QCOMPARE(expanded("[{'X':1,'a__X':2}]", x), QString("X L, a__X aL"));
    QCOMPARE(expanded("[{'A__X':1}]", "[{'FieldName':'Y'},{'FieldName':'X'}]"), QString("A__X A"));
    QCOMPARE(expanded("[{'A__x':1}]", x), QString());
    QCOMPARE(expanded("[]", x), QString("X L"));
    QCOMPARE(expanded("[{},{'A__X':1}]", x), QString("X L"));
}

void TestChartData::formatRoundsThePoint()
{
    QCOMPARE(roundedValue(3, ""), 3.0);
    QCOMPARE(roundedValue(2.345678, ""), 2.35);
    QCOMPARE(roundedValue(123456.789, ""), 123456.789); // six digits do not show its fraction
    QCOMPARE(roundedValue(12345678.125, ""), 12345678.13);
    QCOMPARE(roundedValue(1.23456, "N3"), 1.235);
    QCOMPARE(roundedValue(1.26, "n1"), 1.3);
    QCOMPARE(roundedValue(1.23456, ",2"), 1.23);
    QCOMPARE(roundedValue(1.23456, "N12"), 1.23456);
    QCOMPARE(roundedValue(1.23456, "F2"), 1.23456);
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
    // In the zone of Shanghai, where the tests run, these are 2020-01-31 and 2020-02-29, midnight.
    row("dates", "'XValueType':'DateTime','XItemNamesFormat':'yyyy-MM',", "{'FieldName':'V'}",
        "[{'X':1580400000000},{'X':1582905600000},{'X':'2020年'}]", "2020-01 2020-02 1970-01:  0 0 0");
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

void TestChartData::typeAndAxisShapeTheMixedMessage()
{
    const QVector<QPair<QString, QString>> cases{
        {"'ChartType':''", "{'type':'bar'}"},
        {"'ChartType':'line'", "{'type':'bar'}"},
        {"'ChartType':'XYPlot'", "{'type':'scatter'}"},
        {"'ChartType':'LineSymbols'", "{'type':'line'}"},
        {"'ChartType':'LineSmoothed'", "{'smooth':true,'type':'line'}"},
        {"'ChartType':'AreaStacked','SetStackGroup':1",
         "{'areaStyle':{'normal':{}},'smooth':true,'type':'line'}"},
        {"'ChartType':'Column','SetStackGroup':1", "{'barGap':0,'type':'bar'}"},
        {"'ChartType':'ColumnStacked','SetStackGroup':2", "{'barGap':0,'stack':2,'type':'bar'}"},
        {"'ChartType':'ColumnStacked'", "{'barGap':0,'type':'bar'}"},
        {"'ChartType':'Line','YShaftType':'Right'", "{'type':'line','yAxisIndex':1}"},
        {"'ChartType':'Line','YShaftType':'right'", "{'type':'line'}"},
    };
    QStringList entries, expected, found;
    for (const auto &[entry, series] : cases) {
        entries << '{' + entry + '}';
        expected << series;
    }

    const QJsonObject sent = message(mixedMessage, "[{'X':'a'}]",
                                     "{'XFieldName':'X','ChartDataConfigs':[" + entries.join(',') + "]}");

    for (const QJsonValue &series : sent["series"].toArray()) {
        QJsonObject object = series.toObject();
        object.remove("data");
        object.remove("name");
        found << ChartJson::compact(object);
    }
    QCOMPARE(found, expected);
    QCOMPARE(sent["yAxis"][1]["position"].toString(), QString("right"));
}

void TestChartData::mixedMessageLeavesHiddenSeriesOut()
{
    const QJsonObject sent = message(
        mixedMessage, kThree,
        "{'XFieldName':'X','LegendPosition':3,'ChartDataConfigs':[{'FieldName':'V','LegendLable':'v',"
        "'IsVisible':false,'YShaftType':'Right'},{'FieldName':'W','LegendLable':'w','ChartType':'Line'}]}");

    QCOMPARE(
        ChartJson::compact(sent),
        QString("{'legend':[{'name':'w'}],'legendPostion':3,"
                "'series':[{'data':[4,5,6],'name':'w','type':'line'}],"
                "'xAxisLabel':{'interval':'auto','rotate':0},'xData':['a','b','c'],"
                "'yAxis':[{'position':'left','scale':true,'splitLine':{'show':false},'type':'value'}]}"));
}

void TestChartData::piesStandSideBySide()
{
    const QJsonObject sent =
        message(pieMessage, "[{'X':'a','V':1,'W':4},{'X':'b','V':2,'W':5}]",
                "{'XFieldName':'X','ChartType':'Pie','LegendPosition':1,'ChartDataConfigs':["
                "{'FieldName':'V','LegendLable':'v'},{'FieldName':'W','IsVisible':false}]}");

    const QString pie =
        "{'center':['%1','50%'],'data':[%2],"
        "'label':{'emphasis':{'show':true},'normal':{'show':false}},'name':'%3','type':'pie'}";
    const QString title = "{'text':'%1','textAlign':'center','textStyle':{'fontFamily':'微软雅黑',"
                          "'fontSize':12,'fontWeight':100},'x':'%2','y':'2%'}";
    QCOMPARE(ChartJson::compact(sent),
             "{'axisShow':false,'legend':[{'name':'a'},{'name':'b'}],'legendPostion':1,'series':[" +
                 pie.arg("33%", "{'name':'a','value':1},{'name':'b','value':2}", "v") + ',' +
                 pie.arg("66%", "{'name':'a','value':4},{'name':'b','value':5}", "") + "],'title':[" +
                 title.arg("v", "33%") + ',' + title.arg("", "66%") + "]}");
}

void TestChartData::pivotPieTurnsItsSlices()
{
    const QJsonObject sent =
        message(pivotPieMessage, kThree,
                "{'XFieldName':'X','ChartType':'Pie','IsSwitchXAxis':true,'ChartDataConfigs':["
                "{'FieldName':'V','LegendLable':'v'},{'FieldName':'W','LegendLable':'w'}]}");

    QStringList pies;
    for (const QJsonValue &pie : sent["series"].toArray())
        pies << pie["name"].toString() + ' ' + pie["center"][0].toString() + ' ' +
                    ChartJson::compact(pie["data"]);
    QCOMPARE(pies.join('\n'), QString("a 25% [{'name':'w','value':4},{'name':'v','value':1}]\n"
                                      "b 50% [{'name':'w','value':5},{'name':'v','value':2}]\n"
                                      "c 75% [{'name':'w','value':6},{'name':'v','value':3}]"));
    QCOMPARE(ChartJson::compact(sent["legend"]), QString("[{'name':'v'},{'name':'w'}]"));

    ChartSet withoutLabels;
    withoutLabels.series.append(ChartSeries());
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
    QList<double> values;
    QJsonArray array;
    for (const double number : qAsConst(numbers)) {
        const int decimals = int(random() % 10);
        const double told = QString::number(number, 'f', decimals).toDouble();
        const double rounded = TFRounding::toDecimals(number, decimals);
        QVERIFY2(std::memcmp(&rounded, &told, sizeof told) == 0 || std::isnan(told),
                 qPrintable(QString("%1 to %2").arg(number, 0, 'g', 17).arg(decimals)));
        QVERIFY2(TFRounding::showsFraction(number) == QString::number(number).contains('.'),
                 qPrintable(QString::number(number, 'g', 17)));
        for (const double value : {number, told}) {
            values.append(value);
            array.append(value);
        }
    }
    QByteArray written = "before";
    appendNumbers(written, values);
    QCOMPARE(written, "before" + QJsonDocument(array).toJson(QJsonDocument::Compact));
}

SUBJECT_TEST_MAIN(TestChartData)
#include "tst_chartdata.moc"
