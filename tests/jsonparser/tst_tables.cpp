#include "subjecttest.h"

#include "jsonparser/tfchartviewjsontable.h"
#include "jsonparser/tfchildviewjsontable.h"
#include "jsonparser/tffilterjsontable.h"
#include "jsonparser/tfheaderfieldconfigdata.h"
#include "jsonparser/tfobjectviewconfigtable.h"
#include "jsonparser/tfsummaryjsontable.h"
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

/// What a view says of itself, a line each.
QStringList written(const TFViewConfigTable &view)
{
    const QPair<QString, QVariant> order = view.orderProperty();
    return {QString("view %1").arg(view.viewId()),
            QString("order %1").arg(view.isOrder()),
            QString("cross %1").arg(view.isCross()),
            QString("group %1").arg(view.isGroup()),
            QString("child %1").arg(view.isShowChild()),
            QString("chart %1").arg(view.isGetChartData()),
            QString("turn %1").arg(view.isTurnOver()),
            QString("filter %1").arg(view.isShowFilter()),
            QString("frozen %1").arg(view.frozenCount()),
            QString("level %1").arg(view.bandsLevel()),
            "fields " + view.groupFields(),
            "vgrid " + view.vGridColHeaderField(),
            "sectors " + view.sectorNum() + ' ' + view.rootSectorNum(),
            order.first + ' ' +
                QString::fromUtf8(QJsonDocument(order.second.toJsonObject()).toJson(QJsonDocument::Compact))};
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
    void objectFieldsAreVisibleUnlessTheirStatusSaysOtherwise();
    void filtersKeepTheirWireTypes();
    void chartKeepsFactorsAsTheyCome();
    void summaryKeepsWhatALaterPageLacks();
};

void TestTables::viewPropertiesMatchAsEachNameSays_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("told");
    testRow("order anywhere in the name", R"({"prop_name":"xIsOrDeRy","prop_val":"1"})", "order 1");
    testRow("cross is exact", R"({"prop_name":"isCross","prop_val":"1"})", "");
    testRow("cross", R"({"prop_name":"IsCross","prop_val":"1"})", "cross 1");
    testRow("number 1 is no flag", R"({"prop_name":"IsCross","prop_val":1})", "");
    testRow("1.0 is no integer text", R"({"prop_name":"IsCross","prop_val":"1.0"})", "");
    testRow("group", R"({"prop_name":"IsGroup","prop_val":"01"})", "group 1");
    testRow("the first test that holds wins", R"({"prop_name":"isshowchild_isorder","prop_val":"1"})",
            "child 1");
    testRow("chart data", R"({"prop_name":"ISGETCHARTDATA","prop_val":"1"})", "chart 1");
    testRow("turn over", R"({"prop_name":"IsTurnOver","prop_val":"1"})", "turn 1");
    testRow("show filter is a boolean", R"({"prop_name":"isShowFilter","prop_val":true})", "filter 1");
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
    QCOMPARE(written(table.headerTable()->fields()), QString("A:hidden,0,0"));
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
        {"obj_prop_name":"D","obj_vw_id":5}, "x"])"));
    QString visible;
    for (const char *name : {"A", "B", "C", "D"})
        visible += table.isFieldVisible(name) ? name : "-";
    QCOMPARE(visible, QString("A-C-"));
    QCOMPARE(table.fields().size(), 4);
    QCOMPARE(table.fields().first().objVwId + table.fields().last().objVwId, QString("-15"));
}

void TestTables::filtersKeepTheirWireTypes()
{
    TFFilterJsonTable table;
    table.initWith(
        QString(R"([{"DefualtValue":"d","DefaultValue":"no","FieldName":5,"Width":12.5,"ParameterCategory":1,
        "BeginGroup":true,"UnitCategory":2.9,"ImageIndex":"3","DataSourceFilterParams":"p"}, 1, {"Width":100,"ImageIndex":1234567}])"));
    QStringList filters;
    for (const TFTableModelData::FilterData &f : table.filters())
        filters.append(QString("%1|%2|%3|%4|%5|%6|%7|%8")
                           .arg(f.DefualtValue, f.FieldName, f.ParameterCategory, f.ImageIndex)
                           .arg(f.Width)
                           .arg(f.BeginGroup)
                           .arg(f.UnitCategory)
                           .arg(f.DataSourceFilterParams));
    QCOMPARE(filters, QStringList({"d||1|0|0|1|2|p", "||0|1.23457e+06|100|0|0|"}));

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

void TestTables::summaryKeepsWhatALaterPageLacks()
{
    TFSummaryJsonTable table;
    const auto read = [&table](const QByteArray &text) {
        table.initWith(json(text));
        return QString("%1 rows, page %2 of %3, %4 items, %5")
            .arg(table.rowCount())
            .arg(table.pageIndex())
            .arg(table.pageSize())
            .arg(table.items().size())
            .arg(table.columnTable() ? written(table.columnTable()->fields()) : "none");
    };
    const QStringList pages{
        read(R"([{"Item":"rcount","value":10},{"Item":"pindex","value":"2"},{"Item":"Rcount","value":9}])"),
        read(
            R"([{"Item":"xGridColumnsx","value":"[{\"fieldName\":\"A\"}]"}, 5, {"Item":"psize","value":20}])"),
        read(R"([{"Item":"GridColumns","value":"[{\"fieldName\":\"B\"}]"},{"Item":"pindex","value":2},
                 {"Item":"GridColumns2","value":"[{\"fieldName\":\"C\",\"width\":7}]"}])"),
        read("1")};
    QCOMPARE(pages, QStringList({"10 rows, page 0 of 200, 3 items, none",
                                 "10 rows, page 0 of 200, 1 items, A:hidden,0,0",
                                 "10 rows, page 2 of 200, 3 items, C:hidden,7,0",
                                 "10 rows, page 2 of 200, 0 items, C:hidden,7,0"}));
    QCOMPARE(table.headerFieldInfo("C").width, 7);
}

SUBJECT_TEST_MAIN(TestTables)
#include "tst_tables.moc"
