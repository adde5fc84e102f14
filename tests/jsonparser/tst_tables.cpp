#include "subjecttest.h"

#include "jsonparser/tfchartviewjsontable.h"
#include "jsonparser/tfchildviewjsontable.h"
#include "jsonparser/tffilterjsontable.h"
#include "jsonparser/tfheaderfieldconfigdata.h"
#include "jsonparser/tfjsontablefactory.h"
#include "jsonparser/tfobjectpropertytable.h"
#include "jsonparser/tfobjectviewconfigtable.h"
#include "jsonparser/tfsummaryjsontable.h"
#include "jsonparser/tftablenames.h"
#include "jsonparser/tfviewconfigtable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
QJsonValue json(const QByteArray &text)
{
    return QJsonDocument::fromJson("[" + text + "]").array().at(0);
}

/// "field:visible,width,factor" of each column.
QString written(const QList<HeaderFieldInfo> &fields)
{
    QStringList all;
    for (const HeaderFieldInfo &field : fields) {
        all.append(QString("%1:%2,%3,%4")
                       .arg(field.fieldName)
                       .arg(field.visible ? "shown" : "hidden")
                       .arg(field.width)
                       .arg(field.showUnitFactor));
    }
    return all.join(' ');
}
} // namespace

class TestTables : public SubjectTest
{
    Q_OBJECT

private slots:
    void factoryMakesTheTablesThatHaveAnId();
    void viewPropertiesMatchAsEachNameSays_data();
    void viewPropertiesMatchAsEachNameSays();
    void viewIdComesFromTheFirstObject_data();
    void viewIdComesFromTheFirstObject();
    void orderBecomesAnObjectOfSigns_data();
    void orderBecomesAnObjectOfSigns();
    void extensionsGiveTheirFirstTable();
    void childViewsAreAnnouncedWhileReading();
    void bandsReadNumbersAndVisibility();
    void mergeTakesDisplaySettingsOfTheObject();
    void objectFieldsAreVisibleUnlessTheirStatusSaysOtherwise();
    void filtersKeepTheirWireTypes();
    void chartKeepsFactorsAsTheyCome();
    void summaryStopsAtTheFirstElementThatIsNoObject();
    void summaryKeepsWhatALaterPageLacks();
    void objectPropertiesAreFetchedByUpperCaseKeys();
};

void TestTables::factoryMakesTheTablesThatHaveAnId()
{
    QString ids;
    for (int id = -1; id <= 13; ++id) {
        const auto table = TFJsonTableFactory::create(id);
        if (table)
            ids += QString("%1=%2 ").arg(id).arg(table->tableType());
    }
    QCOMPARE(ids, QString("1=1 2=2 3=3 4=4 7=7 8=8 9=9 10=10 11=11 12=12 "));
    QCOMPARE(TFTableName::idOf("Object"), 5);
    QCOMPARE(TFTableName::idOf("Object_View_Config"), 12);
    QCOMPARE(TFTableName::idOf("data"), 0);
}

void TestTables::viewPropertiesMatchAsEachNameSays_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QString>("set");
    const auto row = [](const char *name, const QByteArray &row, const char *set) {
        testRow(name, row, QString(set));
    };
    row("order anywhere in the name", R"({"prop_name":"xIsOrDeRy","prop_val":"1"})", "order");
    row("cross is exact", R"({"prop_name":"isCross","prop_val":"1"})", "");
    row("cross", R"({"prop_name":"IsCross","prop_val":"1"})", "cross");
    row("number 1 is no flag", R"({"prop_name":"IsCross","prop_val":1})", "");
    row("1.0 is no integer text", R"({"prop_name":"IsCross","prop_val":"1.0"})", "");
    row("group", R"({"prop_name":"IsGroup","prop_val":"01"})", "group");
    row("the first test that holds wins", R"({"prop_name":"isshowchild_isorder","prop_val":"1"})", "child");
    row("chart data", R"({"prop_name":"ISGETCHARTDATA","prop_val":"1"})", "chart");
    row("turn over", R"({"prop_name":"IsTurnOver","prop_val":"1"})", "turn");
    row("show filter is a boolean", R"({"prop_name":"isShowFilter","prop_val":true})", "filter");
    row("show filter as text", R"({"prop_name":"isShowFilter","prop_val":"1"})", "");
    row("frozen count", R"({"prop_name":"FrozenCount","prop_val":"3"})", "frozen3");
    row("frozen count that is no number", R"({"prop_name":"frozencount","prop_val":"x"})", "");
    row("bands level is its own member", R"({"prop_name":"BandsLevel","prop_val":"4"})", "level0");
    row("bands level", R"({"prop_name":"bandslevel","BandsLevel":3})", "level3");
    row("group fields", R"({"prop_name":"GroupFields","prop_val":"A"})", "fields:A");
    row("vertical grid", R"({"prop_name":"VGridColHeaderField","prop_val":"B"})", "vgrid:B");
}

void TestTables::viewPropertiesMatchAsEachNameSays()
{
    QFETCH(QByteArray, row);
    TFViewConfigTable table;
    table.initWith(json("[5, " + row + "]"));
    QStringList set;
    const QVector<QPair<bool, QString>> flags = {
        {table.isOrder(), "order"},      {table.isCross(), "cross"},        {table.isGroup(), "group"},
        {table.isShowChild(), "child"},  {table.isGetChartData(), "chart"}, {table.isTurnOver(), "turn"},
        {table.isShowFilter(), "filter"}};
    for (const auto &flag : flags) {
        if (flag.first)
            set.append(flag.second);
    }
    if (table.frozenCount() != 0)
        set.append(QString("frozen%1").arg(table.frozenCount()));
    if (table.bandsLevel() != 1)
        set.append(QString("level%1").arg(table.bandsLevel()));
    if (!table.groupFields().isEmpty())
        set.append("fields:" + table.groupFields());
    if (table.hasVGridColHeaderField())
        set.append("vgrid:" + table.vGridColHeaderField());
    QTEST(set.join(' '), "set");
}

void TestTables::viewIdComesFromTheFirstObject_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<int>("viewId");
    testRow("no rows", QByteArray("[]"), -1);
    testRow("first object", QByteArray(R"(["x", {"obj_vw_id": 260}, {"obj_vw_id": 261}])"), 260);
    testRow("zero stays", QByteArray(R"([{"obj_vw_id": 0}, {"obj_vw_id": 261}])"), 0);
    testRow("a text reads as 0", QByteArray(R"([{"obj_vw_id": "260"}])"), 0);
}

void TestTables::viewIdComesFromTheFirstObject()
{
    QFETCH(QByteArray, rows);
    TFViewConfigTable table;
    table.initWith(json(rows));
    QTEST(table.viewId(), "viewId");
}

void TestTables::orderBecomesAnObjectOfSigns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("order");
    testRow("two terms", "A desc,,B  ASC", R"(order {"A":-1,"B":1})");
    testRow("a word that is not desc", "A down", R"(order {"A":1})");
    testRow("terms of one and three parts do not count", "A,B DESC x", "order {}");
    testRow("empty", "", " null");
}

void TestTables::orderBecomesAnObjectOfSigns()
{
    QFETCH(QString, text);
    TFViewConfigTable table;
    table.initWith(QJsonArray{QJsonObject{{"prop_name", "ORDER"}, {"prop_val", text}},
                              QJsonObject{{"prop_name", "order"}, {"prop_val", "Z desc"}}});
    const QPair<QString, QVariant> order = table.orderProperty();
    const QString value =
        order.second.isNull()
            ? "null"
            : QString::fromUtf8(QJsonDocument(order.second.toJsonObject()).toJson(QJsonDocument::Compact));
    QTEST(order.first + ' ' + value, "order");
}

void TestTables::extensionsGiveTheirFirstTable()
{
    TFViewConfigTable table;
    table.initWith(json(R"([
        {"prop_typ": "extend", "prop_name": "BANDS", "ext_prop_val": "[{\"FieldName\":\"A\"}]"},
        {"prop_typ": "EXTEND", "prop_name": "Bands", "ext_prop_val": "[{\"FieldName\":\"B\"}]"},
        {"prop_typ": "EXTEND", "prop_name": "filters"}, {"prop_typ": "EXTEND", "prop_name": "other"},
        {"prop_typ": "PLAIN", "prop_name": "childView", "ext_prop_val": "[]"},
        {"prop_name": "SectorNum", "prop_val": "s"}, {"prop_name": "rootsectornum", "prop_val": "no"},
        {"prop_name": "RootSectorNum", "prop_val": "r"}])"));
    QCOMPARE(written(table.headerTable()->fields()), QString("A:hidden,0,0"));
    QVERIFY(table.filterTable() && table.filterTable()->filters().isEmpty());
    QVERIFY(!table.childTable() && !table.chartTable());
    QCOMPARE(table.sectorNum() + table.rootSectorNum() + table.childViewParams(1), QString("sr"));

    table.initWith(json("{}"));
    QVERIFY(!table.headerTable());
    QVERIFY(table.sectorNum().isEmpty());
}

void TestTables::childViewsAreAnnouncedWhileReading()
{
    TFViewConfigTable table;
    QStringList announced;
    connect(&table, &TFBaseJsonTable::sigJsonData, &table, [&](qint64 id, const QString &caption) {
        announced.append(QString("%1 %2 %3").arg(id).arg(caption).arg(table.isShowChild()));
    });
    table.initWith(json(R"([{"prop_typ": "EXTEND", "prop_name": "childView", "ext_prop_val":
        "[{\"ObjShowName\":\"9007199254740993\",\"Caption\":\"large\"}, 7, {\"ObjShowName\":12,\"Caption\":\"number\"},
          {\"ObjShowName\":\"x\",\"Caption\":\"text\"}, {\"ObjShowName\":\"5\",\"Caption\":\"five\",\"Propertyparams\":\"a\"},
          {\"ObjShowName\":\"5\",\"Propertyparams\":\"b\"}]"},
        {"prop_name": "isShowChild", "prop_val": "1"}])"));
    QCOMPARE(announced, QStringList({"9007199254740993 large 1", "5 five 1", "5  1"}));
    QCOMPARE(table.childTable()->children().size(), 5);
    QCOMPARE(table.childViewParams(5) + table.childViewParams(6), QString("a"));
}

void TestTables::bandsReadNumbersAndVisibility()
{
    TFHeaderFieldConfigData upper(nullptr, true);
    upper.initWith(
        QString(R"([{"FieldName":"A","Width":120.7,"ShowUnitFactor":0.5,"Visible":true,"ShowStatus":2},
        {"FieldName":"B","Width":-9,"ShowUnitFactor":1e300,"width":5},[1],"x",{"fieldName":"C","Level":1.5}])"));
    QCOMPARE(written(upper.fields()), QString("A:shown,120,0 B:hidden,-9,9223372036854775807 :hidden,0,0"));
    QCOMPARE(upper.headerFieldInfo("B").width, -9);
    QVERIFY(upper.headerFieldInfo("none").fieldName.isEmpty());

    TFHeaderFieldConfigData lower(nullptr, false);
    lower.initWith(QString(R"([{"fieldName":"A","showStatus":2,"visible":true},
        {"fieldName":"B","showStatus":6,"visible":false},{"fieldName":"C","showStatus":1,"sn":4}])"));
    QCOMPARE(written(lower.fields()), QString("A:hidden,0,0 B:shown,0,0 C:shown,0,0"));
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
        {"obj_prop_name":"A","vw_sts":"1","ots_cfg":"{\"FieldName\":\"A\",\"Caption\":\"other\",\"Width\":80,\"ShowUnitFactor\":10000,\"OwnerBand\":\"Z\",\"ShowStatus\":9}"},
        {"obj_prop_name":"B","vw_sts":6,"ots_cfg":"{broken"}])"));
    TFHeaderFieldConfigData bands(nullptr, true);
    bands.initWith(QString(
        R"([{"FieldName":"A","Caption":"own","OwnerBand":"X","SN":3,"Level":2,"Width":90,"ShowStatus":1},
        {"FieldName":"B","Visible":true,"Width":70},{"FieldName":"C","Width":60}])"));

    expectWarning("cant find field name: \"B\"");
    expectWarning("cant find field name: \"C\"");
    bands.mergeWith(&object);

    QCOMPARE(written(bands.fields()), QString("A:shown,80,10000 B:shown,70,0 C:hidden,60,0"));
    const HeaderFieldInfo a = bands.fields().at(0);
    QCOMPARE(QString("%1 %2 %3 %4 %5").arg(a.caption, a.ownerBand).arg(a.sn).arg(a.level).arg(a.showStatus),
             QString("own X 3 2 0"));
}

void TestTables::objectFieldsAreVisibleUnlessTheirStatusSaysOtherwise()
{
    TFObjectViewConfigTable table;
    QVERIFY(table.isFieldVisible("A"));
    table.initWith(json(
        R"([{"obj_prop_name":"A","vw_sts":6},{"obj_prop_name":"B","vw_sts":"2"},{"obj_prop_name":"B","vw_sts":"1"},
        {"obj_prop_name":"D"}, "x"])"));
    QVERIFY(table.isFieldVisible("A"));
    QVERIFY(!table.isFieldVisible("B"));
    QVERIFY(table.isFieldVisible("C"));
    QVERIFY(!table.isFieldVisible("D"));
    QCOMPARE(table.fields().size(), 4);
}

void TestTables::filtersKeepTheirWireTypes()
{
    TFFilterJsonTable table;
    table.initWith(
        QString(R"([{"DefualtValue":"d","DefaultValue":"no","FieldName":5,"Width":12.5,"ParameterCategory":1,
        "BeginGroup":true,"UnitCategory":2.9,"ImageIndex":"3","DataSourceFilterParams":"p"}, 1, {"Width":100,"ImageIndex":1234567}])"));
    QCOMPARE(table.filters().size(), 2);
    const auto first = table.filters().at(0);
    QCOMPARE(first.DefualtValue, QString("d"));
    QVERIFY(first.FieldName.isEmpty() && first.BeginGroup);
    QCOMPARE(first.Width, 0);
    QCOMPARE(first.ParameterCategory + first.ImageIndex, QString("10"));
    QCOMPARE(first.UnitCategory, 2);
    QCOMPARE(first.DataSourceFilterParams, QString("p"));
    QCOMPARE(table.filters().at(1).Width, 100);
    QCOMPARE(table.filters().at(1).ImageIndex, QString("1.23457e+06"));

    table.initWith(QJsonArray{QJsonObject()});
    QVERIFY(table.filters().isEmpty());
    QVERIFY(debugLines().value(0).contains("Json parse error: "));
}

void TestTables::chartKeepsFactorsAsTheyCome()
{
    TFChartViewJsonTable table;
    table.initWith(QString(R"({"Title":"T","LegendPosition":2,"IsTurnXAxis":true,"ChartDataConfigs":[
        {"LegendLable":"l","ShowUnitFactor":0.5,"PrevUnitFactor":0.5,"IsVisible":true,"SetStackGroup":3},
        "no object", {"PrevUnitFactor":100}]})"));
    const TFChartViewJsonTable::Config config = table.config();
    QCOMPARE(config.Title, QString("T"));
    QCOMPARE(config.LegendPosition, 2);
    QVERIFY(config.IsTurnXAxis && !config.ToolBarVisible);
    QStringList series;
    for (const auto &s : config.ChartDataConfigs)
        series.append(QString("%1 %2 %3 %4 %5")
                          .arg(s.LegendLable)
                          .arg(s.ShowUnitFactor)
                          .arg(s.PrevUnitFactor)
                          .arg(s.IsVisible)
                          .arg(s.SetStackGroup));
    QCOMPARE(series, QStringList({"l 0.5 0 1 3", " 0 0 0 0", " 0 100 0 0"}));

    table.initWith(QString("{\"Title\":"));
    QVERIFY(table.config().Title.isEmpty() && table.config().ChartDataConfigs.isEmpty());
    QVERIFY(debugLines().value(0).contains("Json parse error: "));
}

void TestTables::summaryStopsAtTheFirstElementThatIsNoObject()
{
    TFSummaryJsonTable table;
    table.initWith(
        json(R"([{"Item":"rcount","value":1234},{"Item":"pindex","value":"2"},{"Item":"Rcount","value":9},
        {"Item":"xGridColumnsx","value":"[{\"fieldName\":\"A\",\"showStatus\":1,\"width\":7}]"}, 5, {"Item":"psize","value":20}])"));
    QCOMPARE(table.rowCount(), 1234);
    QCOMPARE(table.pageIndex(), 0);
    QCOMPARE(table.pageSize(), 200);
    QCOMPARE(table.items().size(), 4);
    QVERIFY(table.items().at(3).value.isNull());
    QCOMPARE(table.headerFieldInfo("A").width, 7);
}

void TestTables::summaryKeepsWhatALaterPageLacks()
{
    TFSummaryJsonTable table;
    table.initWith(
        json(R"([{"Item":"rcount","value":10},{"Item":"GridColumns","value":"[{\"fieldName\":\"A\"}]"}])"));
    table.initWith(json(R"([{"Item":"pindex","value":2}])"));
    QCOMPARE(QString("%1 %2 %3")
                 .arg(table.rowCount())
                 .arg(table.pageIndex())
                 .arg(written(table.columnTable()->fields())),
             QString("10 2 A:hidden,0,0"));

    table.initWith(json(
        R"([{"Item":"GridColumns","value":"[{\"fieldName\":\"B\"}]"},{"Item":"GridColumns2","value":"[{\"fieldName\":\"C\"}]"}])"));
    QCOMPARE(written(table.columnTable()->fields()), QString("C:hidden,0,0"));
    table.initWith(QJsonValue(1));
    QVERIFY(table.items().isEmpty());
    QCOMPARE(table.rowCount(), 10);
}

void TestTables::objectPropertiesAreFetchedByUpperCaseKeys()
{
    TFObjectPropertyTable table;
    table.initWith(json(
        R"({"DATA":[{"OBJ_ID":2.5,"PROP_NAME":"n","PROP_CAP":7}, 1, {"obj_id":3,"prop_name":"lost"}]})"));
    QCOMPARE(table.properties().size(), 2);
    QCOMPARE(table.properties().at(0).objId, 2.5);
    QCOMPARE(table.properties().at(0).propName + table.properties().at(0).propCap, QString("n7"));
    QVERIFY(table.properties().at(1).propName.isEmpty());
}

SUBJECT_TEST_MAIN(TestTables)
#include "tst_tables.moc"
