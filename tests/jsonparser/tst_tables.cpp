#include "parserdocument.h"
#include "subjecttest.h"

#include "jsonparser/tfchartviewjsontable.h"
#include "jsonparser/tfchildviewjsontable.h"
#include "jsonparser/tffilterjsontable.h"
#include "jsonparser/tfheaderfieldconfigdata.h"
#include "jsonparser/tfobjectviewconfigtable.h"
#include "jsonparser/tfsummaryjsontable.h"
#include "jsonparser/tfviewconfigtable.h"

namespace {
QJsonValue json(const QByteArray &text)
{
    return QJsonDocument::fromJson("[" + text + "]").array().at(0);
}

QStringList written(const QList<HeaderFieldInfo> &fields)
{
    QStringList lines;
    for (const HeaderFieldInfo &field : fields)
        lines.append(
            line(field.fieldName, field.visible ? "shown" : "hidden", field.width, field.showUnitFactor));
    return lines;
}

/// What a view says of itself, a line each.
QStringList written(const TFViewConfigTable &view)
{
    const QPair<QString, QVariant> order = view.orderProperty();
    return {line("view", view.viewId()),
            line("order", view.isOrder()),
            line("cross", view.isCross()),
            line("group", view.isGroup()),
            line("child", view.isShowChild()),
            line("chart", view.isGetChartData()),
            line("turn", view.isTurnOver()),
            line("filter", view.isShowFilter()),
            line("frozen", view.frozenCount()),
            line("level", view.bandsLevel()),
            line("fields", view.groupFields()),
            line("vgrid", view.vGridColHeaderField()),
            line("sectors", view.sectorNum(), view.rootSectorNum()),
            line(order.first, QJsonDocument(order.second.toJsonObject()).toJson(QJsonDocument::Compact))};
}
} // namespace

class TestTables : public SubjectTest
{
    Q_OBJECT

private slots:
    void viewPropertiesMatchAsEachNameSays_data();
    void viewPropertiesMatchAsEachNameSays();
    void extensionsGiveTheirFirstTable();
    void childViewsAreAnnouncedWhileReading();
    void bandsReadNumbersAndVisibility();
    void mergeTakesDisplaySettingsOfTheObject();
    void filtersKeepTheirWireTypes();
    void chartKeepsFactorsAsTheyCome();
    void summaryKeepsWhatALaterPageLacks();
};

void TestTables::viewPropertiesMatchAsEachNameSays_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("told");
    testRow("order anywhere in the name", R"({"prop_name":"xIsOrDeRy","prop_val":"1"})", "order true");
    testRow("cross is exact", R"({"prop_name":"isCross","prop_val":"1"})", "");
    testRow("cross", R"({"prop_name":"IsCross","prop_val":"1"})", "cross true");
    testRow("number 1 is no flag", R"({"prop_name":"IsCross","prop_val":1})", "");
    testRow("1.0 is no integer text", R"({"prop_name":"IsCross","prop_val":"1.0"})", "");
    testRow("group", R"({"prop_name":"IsGroup","prop_val":"01"})", "group true");
    testRow("the first test that holds wins", R"({"prop_name":"isshowchild_isorder","prop_val":"1"})",
            "child true");
    testRow("chart data", R"({"prop_name":"ISGETCHARTDATA","prop_val":"1"})", "chart true");
    testRow("turn over", R"({"prop_name":"IsTurnOver","prop_val":"1"})", "turn true");
    testRow("show filter is a boolean", R"({"prop_name":"isShowFilter","prop_val":true})", "filter true");
    testRow("show filter as text", R"({"prop_name":"isShowFilter","prop_val":"1"})", "");
    testRow("frozen count", R"({"prop_name":"FrozenCount","prop_val":"3"})", "frozen 3");
    testRow("frozen count that is no number", R"({"prop_name":"frozencount","prop_val":"x"})", "");
    testRow("bands level is its own member", R"({"prop_name":"BandsLevel","prop_val":"4"})", "level 0");
    testRow("bands level", R"({"prop_name":"bandslevel","BandsLevel":3})", "level 3");
    testRow("group fields", R"({"prop_name":"GroupFields","prop_val":"A"})", "fields A");
    testRow("vertical grid", R"({"prop_name":"VGridColHeaderField","prop_val":"B"})", "vgrid B");
    testRow("first view", R"({"obj_vw_id":260},{"obj_vw_id":261})", "view 260");
    testRow("view 0 stays", R"({"obj_vw_id":0},{"obj_vw_id":261})", "");
    testRow("view as text", R"({"obj_vw_id":"260"})", "");
    testRow("sectors",
            R"({"prop_name":"SectorNum","prop_val":"s"},{"prop_name":"rootsectornum","prop_val":"no"},
                          {"prop_name":"RootSectorNum","prop_val":"r"})",
            "sectors s r");
    testRow("first order",
            R"({"prop_name":"ORDER","prop_val":"A desc,,B  ASC"},{"prop_name":"order","prop_val":"Z"})",
            R"(order {"A":-1,"B":1})");
    testRow("order that is not desc", R"({"prop_name":"order","prop_val":"A down"})", R"(order {"A":1})");
    testRow("order of one and three parts", R"({"prop_name":"order","prop_val":"A,B DESC x"})", "order {}");
    testRow("empty order", R"({"prop_name":"order","prop_val":""},{"prop_name":"order","prop_val":"Z desc"})",
            "");
}

void TestTables::viewPropertiesMatchAsEachNameSays()
{
    QFETCH(QString, rows);
    TFViewConfigTable table;
    table.initWith(json("[5, " + rows.toUtf8() + "]"));
    TFViewConfigTable other;
    other.initWith(json("[{}]"));
    const QStringList usual = written(other);
    QStringList told = written(table);
    for (const QString &line : usual)
        told.removeOne(line);
    QTEST(told.join(", "), "told");
}

void TestTables::extensionsGiveTheirFirstTable()
{
    TFViewConfigTable table;
    table.initWith(json(R"([
        {"prop_typ": "extend", "prop_name": "BANDS", "ext_prop_val": "[{\"FieldName\":\"A\"}]"},
        {"prop_typ": "EXTEND", "prop_name": "Bands", "ext_prop_val": "[{\"FieldName\":\"B\"}]"},
        {"prop_typ": "EXTEND", "prop_name": "filters"}, {"prop_typ": "EXTEND", "prop_name": "other"},
        {"prop_typ": "PLAIN", "prop_name": "childView", "ext_prop_val": "[]"}])"));
    QCOMPARE(written(table.headerTable()->fields()), QStringList("A hidden 0 0"));
    QVERIFY(table.filterTable() && table.filterTable()->filters().isEmpty());
    QVERIFY(!table.childTable() && !table.chartTable() && table.childViewParams(1).isEmpty());

    table.initWith(json("{}"));
    QVERIFY(!table.headerTable());
}

void TestTables::childViewsAreAnnouncedWhileReading()
{
    TFViewConfigTable table;
    QStringList announced;
    connect(&table, &TFBaseJsonTable::sigJsonData, &table, [&](qint64 id, const QString &caption) {
        announced.append(line(id, caption, table.isShowChild()));
    });
    table.initWith(json(R"([{"prop_typ": "EXTEND", "prop_name": "childView", "ext_prop_val":
        "[{\"ObjShowName\":\"9007199254740993\",\"Caption\":\"large\"}, 7, {\"ObjShowName\":12,\"Caption\":\"number\"},
          {\"ObjShowName\":\"x\",\"Caption\":\"text\"}, {\"ObjShowName\":\"5\",\"Caption\":\"five\",\"Propertyparams\":\"a\"},
          {\"ObjShowName\":\"5\",\"Propertyparams\":\"b\"}]"},
        {"prop_name": "isShowChild", "prop_val": "1"}])"));
    QCOMPARE(announced, QStringList({"9007199254740993 large true", "5 five true", "5  true"}));
    QCOMPARE(table.childTable()->children().size(), 5);
    QCOMPARE(table.childViewParams(5) + table.childViewParams(6), QString("a"));
}

void TestTables::bandsReadNumbersAndVisibility()
{
    TFHeaderFieldConfigData upper(nullptr, true);
    upper.initWith(
        QString(R"([{"FieldName":"A","Width":120.7,"ShowUnitFactor":0.5,"Visible":true,"ShowStatus":2},
        {"FieldName":"B","Width":-9,"ShowUnitFactor":1e300,"width":5},[1],"x",{"fieldName":"C","Level":1.5}])"));
    QCOMPARE(written(upper.fields()),
             QStringList({"A shown 120 0", "B hidden -9 9223372036854775807", " hidden 0 0"}));
    QCOMPARE(upper.headerFieldInfo("B").width, -9);
    QVERIFY(upper.headerFieldInfo("none").fieldName.isEmpty());

    TFHeaderFieldConfigData lower(nullptr, false);
    lower.initWith(QString(R"([{"fieldName":"A","showStatus":2,"visible":true},
        {"fieldName":"B","showStatus":6,"visible":false},{"fieldName":"C","showStatus":1,"sn":4}])"));
    QCOMPARE(written(lower.fields()), QStringList({"A hidden 0 0", "B shown 0 0", "C shown 0 0"}));
    QCOMPARE(lower.fields().at(2).sn, 4);

    lower.initWith(QString("[]"));
    QVERIFY(lower.fields().isEmpty() && debugLines().isEmpty());
    lower.initWith(QString("[{]"));
    QVERIFY2(debugLines().value(0).contains("initWith Json parse error: "),
             qPrintable(debugLines().join('\n')));
}

void TestTables::mergeTakesDisplaySettingsOfTheObject()
{
    TFObjectViewConfigTable object;
    object.initWith(json(R"([
        {"obj_prop_name":"A","vw_sts":6,"ots_cfg":"{\"FieldName\":\"A\",\"Caption\":\"other\",\"Width\":80,\"ShowUnitFactor\":10000,\"OwnerBand\":\"Z\",\"ShowStatus\":9}"},
        {"obj_prop_name":"B","vw_sts":"1","ots_cfg":"{broken"}, "x",
        {"obj_prop_name":"D","obj_vw_id":5,"ots_cfg":"{\"FieldName\":\"D\"}"},
        {"obj_prop_name":"E","vw_sts":"2","ots_cfg":"{\"FieldName\":\"E\"}"},{"obj_prop_name":"E","vw_sts":"1"}])"));
    TFHeaderFieldConfigData bands(nullptr, true);
    bands.initWith(QString(
        R"([{"FieldName":"A","Caption":"own","OwnerBand":"X","SN":3,"Level":2,"Width":90,"ShowStatus":1},
        {"FieldName":"B","Visible":true,"Width":70},{"FieldName":"C","Width":60},
        {"FieldName":"D","Visible":true},{"FieldName":"E","Visible":true}])"));

    expectWarning("cant find field name: \"B\"");
    expectWarning("cant find field name: \"C\"");
    bands.mergeWith(&object);

    QCOMPARE(written(bands.fields()), QStringList({"A shown 80 10000", "B shown 70 0", "C hidden 60 0",
                                                   "D hidden 0 0", "E hidden 0 0"}));
    const HeaderFieldInfo a = bands.fields().at(0);
    QCOMPARE(line(a.caption, a.ownerBand, a.sn, a.level, a.showStatus), QString("own X 3 2 0"));
    QCOMPARE(object.fields().at(1).objVwId + object.fields().at(2).objVwId, QString("-15"));
    QVERIFY(object.isFieldVisible("C") && !object.isFieldVisible("E"));
}

void TestTables::filtersKeepTheirWireTypes()
{
    TFFilterJsonTable table;
    table.initWith(
        QString(R"([{"DefualtValue":"d","DefaultValue":"no","FieldName":5,"Width":12.5,"ParameterCategory":1,
        "BeginGroup":true,"UnitCategory":2.9,"ImageIndex":"3","DataSourceFilterParams":"p"}, 1, {"Width":100,"ImageIndex":1234567}])"));
    QStringList filters;
    for (const TFTableModelData::FilterData &f : table.filters())
        filters.append(line(f.DefualtValue, f.FieldName, f.ParameterCategory, f.ImageIndex, f.Width,
                            f.BeginGroup, f.UnitCategory, f.DataSourceFilterParams));
    QCOMPARE(filters, QStringList({"d  1 0 0 true 2 p", "  0 1.23457e+06 100 false 0 "}));

    table.initWith(QJsonArray{QJsonObject()});
    QVERIFY(table.filters().isEmpty());
}

void TestTables::chartKeepsFactorsAsTheyCome()
{
    TFChartViewJsonTable table;
    table.initWith(QString(R"({"Title":"T","LegendPosition":2,"IsTurnXAxis":true,"ChartDataConfigs":[
        {"LegendLable":"l","ShowUnitFactor":0.5,"PrevUnitFactor":0.5,"IsVisible":true,"SetStackGroup":3},
        "no object", {"PrevUnitFactor":100}]})"));
    const TFChartViewJsonTable::Config chart = table.config();
    QStringList told{line(chart.Title, chart.LegendPosition, chart.IsTurnXAxis, chart.ToolBarVisible)};
    for (const auto &s : chart.ChartDataConfigs)
        told.append(line(s.LegendLable, s.ShowUnitFactor, s.PrevUnitFactor, s.IsVisible, s.SetStackGroup));
    QCOMPARE(told, QStringList({"T 2 true false", "l 0.5 0 true 3", " 0 0 false 0", " 0 100 false 0"}));

    table.initWith(QString("{\"Title\":"));
    QVERIFY(table.config().Title.isEmpty() && table.config().ChartDataConfigs.isEmpty());
}

void TestTables::summaryKeepsWhatALaterPageLacks()
{
    TFSummaryJsonTable table;
    const auto read = [&table](const QByteArray &text) {
        table.initWith(json(text));
        const auto *columns = table.columnTable();
        return line(table.rowCount(), table.pageIndex(), table.pageSize(), table.items().size(),
                    columns ? written(columns->fields()).join(',') : "none");
    };
    const QStringList pages{
        read(R"([{"Item":"rcount","value":10},{"Item":"pindex","value":"2"},{"Item":"Rcount","value":9}])"),
        read(
            R"([{"Item":"xGridColumnsx","value":"[{\"fieldName\":\"A\"}]"}, 5, {"Item":"psize","value":20}])"),
        read(R"([{"Item":"GridColumns","value":"[{\"fieldName\":\"B\"}]"},{"Item":"pindex","value":2},
                 {"Item":"GridColumns2","value":"[{\"fieldName\":\"C\",\"width\":7}]"}])"),
        read("1")};
    QCOMPARE(pages, QStringList({"10 0 200 3 none", "10 0 200 1 A hidden 0 0", "10 2 200 3 C hidden 7 0",
                                 "10 2 200 0 C hidden 7 0"}));
    QCOMPARE(table.headerFieldInfo("C").width, 7);
}

SUBJECT_TEST_MAIN(TestTables)
#include "tst_tables.moc"
