#include "subjecttest.h"

#include <QSignalSpy>

#include "chartjson.h"
#include "echarts/tfdatasource.h"

class TestChartSource : public SubjectTest
{
    Q_OBJECT

private slots:
    void rowsAreDrawnByEachWayTheyCome();
    void configurationAloneAddsToWhatIsThere();
    void mainTablesRowsKeepTheirDateTexts();
    void pieIsSentAsOneWhileThereAreSeries();
    void liveFilterIsAParameterWithAControl();
    void menuCallsWaitForTheMenuToGo();
};

namespace {
const char kLine[] = "{'XFieldName':'X','XValueType':'String','XDisplayDataPattern':1,"
                     "'ChartDataConfigs':[{'FieldName':'V','LegendLable':'v','IsVisible':true}]}";
const char kRows[] = "[{'X':'b','V':2},{'X':'a','V':1}]";

/// "b a: v 2 1", what the next message is made of.
QString drawn(const TFDataSource &source)
{
    return ChartJson::text(source.chartSet());
}
} // namespace

void TestChartSource::rowsAreDrawnByEachWayTheyCome()
{
    TFDataSource source;
    source.loadConfigAndData(QJsonValue("garbage"));
    QVERIFY(source.isGetChartData() && !source.isCross() && !source.isFilterShown());
    QVERIFY(source.order().key.isNull() && source.order().value.isNull());

    QSignalSpy cleared(&source, &TFDataSource::signalClear);
    source.loadConfigAndData(ChartJson::document(kLine, kRows));
    QCOMPARE(drawn(source), QString("b a: v 2 1"));
    QCOMPARE(source.caption(), QString("甲/乙"));

    source.loadConfigAndData(QJsonObject{{"Data", ChartJson::parse("[{'X':'c','V':3}]").array()}});
    QCOMPARE(drawn(source), QString("c: v 3"));

    source.setRows(ChartJson::rows(kRows));
    QCOMPARE(drawn(source), QString("b a: v 2 1"));
    QCOMPARE(cleared.count(), 3);

    source.clear();
    QCOMPARE(cleared.count(), 4);
    QVERIFY(!source.hasSeries());
}

void TestChartSource::configurationAloneAddsToWhatIsThere()
{
    TFDataSource source;
    source.loadConfig(ChartJson::document(kLine, kRows));
    source.loadConfig(ChartJson::document(kLine, "[{'X':'c','V':3}]"));
    QCOMPARE(drawn(source), QString(": v 2 1 | v 3"));
    source.loadConfig(ChartJson::document(kLine));
    QCOMPARE(drawn(source), QString(": v 2 1 | v 3"));
}

void TestChartSource::mainTablesRowsKeepTheirDateTexts()
{
    const QString chart = QString(kLine).replace("'String'", "'DateTime'");
    TFDataSource source;
    source.loadConfig(ChartJson::document(chart, {}, {{"isgetchartdata", "0"}}));
    source.setRows(ChartJson::rows("[{'X':1580400000000,'V':1},{'X':1582905600000,'V':2}]"));
    QCOMPARE(drawn(source), QString("2020/2/29 2020/1/31: v 2 1"));
    source.setRows(ChartJson::rows("[{'X':'2020年','V':1}]"));
    QCOMPARE(drawn(source), QString("2020年: v 1"));
    QVERIFY(!source.isGetChartData());
}

void TestChartSource::pieIsSentAsOneWhileThereAreSeries()
{
    TFDataSource source;
    QSignalSpy pies(&source, &TFDataSource::signalPieData);
    QSignalSpy mixed(&source, &TFDataSource::signalMixedChartData);
    const QString pie = QString(kLine).replace("'XFieldName'", "'ChartType':'Pie','XFieldName'");
    source.loadConfigAndData(ChartJson::document(pie));
    source.slotRefreshChartDaTa();
    QCOMPARE(pies.count(), 0);

    source.loadConfigAndData(ChartJson::document(pie, kRows));
    source.slotRefreshChartDaTa();
    QCOMPARE(pies.count(), 1);

    source.loadConfigAndData(QJsonObject{{"View_Config", QJsonArray()}}); // the last chart stays a pie
    source.slotRefreshChartDaTa();
    QCOMPARE(pies.count(), 1);
    QCOMPARE(mixed.count(), 0);
}

void TestChartSource::liveFilterIsAParameterWithAControl()
{
    QJsonObject json = ChartJson::document(kLine, {}, {{"order", "B desc,A asc,C"}});
    QJsonArray view = json["View_Config"].toArray();
    view.append(
        QJsonObject{{"prop_typ", "EXTEND"},
                    {"prop_name", "filters"},
                    {"ext_prop_val", R"([{"FieldName":"A","ClassName":"ComboBox","ParameterCategory":1},
                             {"FieldName":"B","ClassName":"LabelControl","ParameterCategory":1},
                             {"FieldName":"C","ClassName":"ComboBox","ParameterCategory":0}])"}});
    json.insert("View_Config", view);
    TFDataSource source;
    source.loadConfig(json);

    QStringList live;
    for (const char *field : {"A", "B", "C", "D"})
        live << (source.isFilterLive(field) ? field : "-");
    QCOMPARE(live.join(' '), QString("A - - -"));
    QCOMPARE(source.filterList().size(), 3);
    QCOMPARE(source.order().key, QString("order"));
    QCOMPARE(ChartJson::compact(source.order().value.toJsonObject()), QString("{'A':1,'B':-1}"));
}

void TestChartSource::menuCallsWaitForTheMenuToGo()
{
    TFDataSource source;
    QSignalSpy saved(&source, &TFDataSource::signalSaveImage);
    QSignalSpy copied(&source, &TFDataSource::signalCopyImage);
    QSignalSpy printed(&source, &TFDataSource::signalPrintImage);
    source.saveImage();
    source.copyImage();
    source.printImage();
    QCOMPARE(saved.count() + copied.count() + printed.count(), 0);
    QTRY_COMPARE(saved.count() + copied.count() + printed.count(), 3);
    QCOMPARE(saved.first().first().toString(), QString());
}

SUBJECT_TEST_MAIN(TestChartSource)
#include "tst_chartsource.moc"
