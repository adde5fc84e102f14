#include "configpacker.h"
#include "servicefixture.h"
#include "subjecttest.h"
#include "viewlibrary.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace service;

namespace {

/// Configuration of a served view as the wire has it.
QJsonObject configuration(const ViewLibrary &library, qint64 id)
{
    return QJsonDocument::fromJson('{' + library.view(id)->configuration + '}').object();
}

QJsonObject viewProperty(const QJsonObject &configuration, const QString &name)
{
    const QJsonArray entries = configuration.value("View_Config").toArray();
    for (const QJsonValue &entry : entries) {
        if (entry.toObject().value("prop_name").toString() == name)
            return entry.toObject();
    }
    return {};
}

QJsonArray extension(const QJsonObject &configuration, const QString &name)
{
    const QString text = viewProperty(configuration, name).value("ext_prop_val").toString();
    return QJsonDocument::fromJson(text.toUtf8()).array();
}

/// Sets the member at a path such as "bands/1/children/0/FieldName" to \a value.
QJsonValue changed(const QJsonValue &whole, const QStringList &path, const QJsonValue &value)
{
    if (path.isEmpty())
        return value;
    if (whole.isArray()) {
        QJsonArray array = whole.toArray();
        const int index = path.first().toInt();
        array.replace(index, changed(array.at(index), path.mid(1), value));
        return array;
    }
    QJsonObject object = whole.toObject();
    object.insert(path.first(), changed(object.value(path.first()), path.mid(1), value));
    return object;
}

} // namespace

class TestViewDocuments : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        m_fixture = std::make_unique<ServiceFixture>();
        m_fixture->writeStandardViews();
        m_database = std::make_unique<Database>(m_fixture->databaseAddress());
        QString fault;
        QVERIFY2(m_database->open(&fault), qPrintable(fault));
    }

    void cleanup()
    {
        m_database.reset();
        m_fixture.reset();
        endMessages();
    }

    void bandsTravelAsTextWithTheirOwners()
    {
        const ViewLibrary library(m_fixture->viewFolder(), *m_database);
        QCOMPARE(library.faults(), QStringList());

        QStringList lines;
        const QJsonArray bands = extension(configuration(library, 10), "Bands");
        for (const QJsonValue &value : bands) {
            const QJsonObject band = value.toObject();
            lines << QString("%1 %2 %3 in '%4' level %5")
                         .arg(band.value("SN").toInt())
                         .arg(band.value("FieldName").toString(), band.value("Caption").toString(),
                              band.value("OwnerBand").toString())
                         .arg(band.value("Level").toInt());
        }

        QCOMPARE(lines, QStringList({"1 SYMBOL 代码 in '' level 1", "2 BAND_1 组 in '' level 1",
                                     "3 NAME 名\"称 in 'BAND_1' level 2", "4 BAND_2 价 in 'BAND_1' level 2",
                                     "5 PRICE 价格 in 'BAND_2' level 3", "6 DAY 日 in '' level 1"}));
    }

    void everyColumnHasItsSettings()
    {
        const ViewLibrary library(m_fixture->viewFolder(), *m_database);

        QStringList lines;
        const QJsonArray entries = configuration(library, 10).value("Object_View_Config").toArray();
        for (const QJsonValue &value : entries) {
            const QJsonObject entry = value.toObject();
            const QJsonObject settings =
                QJsonDocument::fromJson(entry.value("ots_cfg").toString().toUtf8()).object();
            lines << QStringList{entry.value("obj_prop_name").toString(), entry.value("vw_sts").toString(),
                                 settings.value("ColumnType").toString(),
                                 settings.value("ValueType").toString()}
                         .join(' ');
        }

        QCOMPARE(lines, QStringList({"SYMBOL 1 BandedGridColumn String", "BAND_1 1 Band String",
                                     "NAME 1 BandedGridColumn String", "BAND_2 1 Band String",
                                     "PRICE 0 BandedGridColumn Decimal", "DAY 1 BandedGridColumn DateTime",
                                     "SECTOR 1 BandedGridColumn Int32"}));
    }

    void propertiesTravelAsText()
    {
        const ViewLibrary library(m_fixture->viewFolder(), *m_database);
        const QJsonObject table = configuration(library, 10);
        const auto text = [](const QJsonObject &configuration, const char *name) {
            return viewProperty(configuration, QLatin1String(name)).value("prop_val");
        };

        QCOMPARE(text(table, "isPaged"), QJsonValue("1"));
        QCOMPARE(text(table, "IsGroup"), QJsonValue("0"));
        QCOMPARE(text(table, "pageSize"), QJsonValue("5"));
        QCOMPARE(text(table, "Order"), QJsonValue("PRICE DESC,SYMBOL ASC"));
        QCOMPARE(text(table, "isShowChild"), QJsonValue("1"));
        QCOMPARE(text(table, "ObjViewType"), QJsonValue("ViewDataTable"));
        QCOMPARE(viewProperty(table, "BandsLevel").value("BandsLevel"), QJsonValue(3));
        QCOMPARE(text(configuration(library, 12), "IsCross"), QJsonValue("1"));
        QCOMPARE(table.value("Object_View").toArray().at(0).toObject().value("obj_vw_name"),
                 QJsonValue("行情 \"一\""));
        const QJsonObject combo = extension(table, "filters").at(0).toObject();
        QCOMPARE(combo.value("ParameterCategory"), QJsonValue(1));
        QCOMPARE(combo.value("DataSourceFilterParams"), QJsonValue("{\"R\":\"x\"}"));
    }

    void linksTellParametersFromFields()
    {
        const ViewLibrary library(m_fixture->viewFolder(), *m_database);

        const QJsonObject child = extension(configuration(library, 10), "childView").at(0).toObject();

        QCOMPARE(child.value("ObjShowName"), QJsonValue("11"));
        QCOMPARE(child.value("Propertyparams"), QJsonValue("SYMBOL=数据源.S;SECTOR=SECTOR"));
    }

    void faultsNameFileAndPlace_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("fault");

        const auto row = [](const char *path, const QJsonValue &value, const char *fault) {
            testRow(fault, QString::fromUtf8(path), value, QString::fromUtf8(fault));
        };
        row("colour", 1, "a/10.json / colour: unknown key; known are id, name");
        row("id", "10", "a/10.json / id: expected a whole number, found \"10\"");
        row("id", 13, "a/10.json / id: 13 is not the file's name");
        row("sql", "DROP TABLE price", "a/10.json / sql: the statement has to begin with SELECT");
        row("sql", "SELECT 1; SELECT 2", "a/10.json / sql: position 9: \";\" is not allowed");
        row("sql", "SELECT * FROM price WHERE PRICE > :LOW", "a/10.json / sql: the parameter :LOW is not in");
        row("sql", "SELECT NOPE FROM price", "a/10.json / sql: the database does not accept the statement");
        row("params/EXCHANGE", true, "a/10.json / params.EXCHANGE: expected a text, a number");
        row("order", "PRICE DOWN", "a/10.json / order: \"PRICE DOWN\" is not a column with ASC or DESC");
        row("order", "NOPE ASC", "a/10.json / order: no column \"NOPE\" in sql; columns are SYMBOL, NAME");
        row("key", "NOPE", "a/10.json / key: no column \"NOPE\"");
        row("properties/isPagd", true, "a/10.json / properties.isPagd: unknown key");
        row("properties/isPaged", "1", "a/10.json / properties.isPaged: expected true or false, found \"1\"");
        row("bands", QJsonArray(), "a/10.json / bands: a view needs bands or a chart");
        row("bands/1/children/1/children/0/FieldName", "PRCE",
            "a/10.json / bands[1].children[1].children[0].FieldName: no column \"PRCE\"");
        row("bands/1/children/0/FieldName", "SYMBOL",
            "a/10.json / bands[1].children[0].FieldName: \"SYMBOL\" stands twice");
        row("bands/0/Width", "80", "a/10.json / bands[0].Width: expected a number, found \"80\"");
        row("bands/1/children", QJsonArray(),
            "a/10.json / bands[1].children: a band needs at least one column");
        row("filters/0/FieldName", "NOPE",
            "a/10.json / filters[0].FieldName: no parameter \"NOPE\" in params");
        row("filters/1/FieldName", "NOPE", "a/10.json / filters[1].FieldName: no column \"NOPE\"");
        row("childViews/0/link/S", "NOPE", "a/10.json / childViews[0].link.S: no column \"NOPE\"");
        row("products", QJsonArray(), "a/10.json / products: expected a product at least");
        row("products", "a,b", "a/10.json / products: \"a,b\" is no product's name");
        row("block", "NOPE", "a/10.json / block: no column \"NOPE\"");
        row("block", object("{'condition': 'SECTOR = 1'}"),
            "a/10.json / block.condition: the condition takes the one");
        row("chart", object("{'XFieldName': 'DAY', 'ChartDataConfigs': [{'FieldName': 'NOPE'}]}"),
            "a/10.json / chart.ChartDataConfigs[0].FieldName: no column \"NOPE\"");
        row("cross", object("{'rows': ['DAY'], 'column': 'NOPE', 'values': ['PRICE']}"),
            "a/10.json / cross.column: no column \"NOPE\"");
    }

    void faultsNameFileAndPlace()
    {
        QFETCH(QString, path);
        QFETCH(QJsonValue, value);
        QFETCH(QString, fault);
        allowWarnings("failed: ");
        m_fixture->write("a/10.json",
                         changed(ServiceFixture::tableDocument(), path.split('/'), value).toObject());

        const ViewLibrary library(m_fixture->viewFolder(), *m_database);

        QVERIFY(!library.view(10));
        QVERIFY2(library.faults().value(0).startsWith(fault), qPrintable(library.faults().join('\n')));
    }

    void otherDocumentsAreServedBesideABadOne()
    {
        m_fixture->write("c/11.json", object("{'id': 11}"));
        m_fixture->write("blocks.json", object("{'blocks': [{'securityType': 'x'}]}"));

        const ViewLibrary library(m_fixture->viewFolder(), *m_database);

        QCOMPARE(library.viewCount(), 3);
        QVERIFY(library.catalogue().blocks().sql.text.isEmpty());
        QVERIFY(!library.catalogue().topic(2).isEmpty());
        QVERIFY(library.faults().contains(
            "blocks.json / blocks[0].securityType: expected a whole number, found \"x\""));
        QVERIFY(library.faults().contains("c/11.json / id: 11 is taken by a/b/11.json"));
    }

    void textThatIsNoJsonIsLocatedByLine()
    {
        m_fixture->write("13.json", QByteArray("{\n  \"id\": 13,\n  \"name\" 1\n}"));
        m_fixture->write("14.json", QByteArray("[]"));

        const QStringList faults = ViewLibrary(m_fixture->viewFolder(), *m_database).faults();

        QCOMPARE(faults.size(), 2);
        QVERIFY2(faults.at(0).startsWith("13.json: line 3, byte "), qPrintable(faults.at(0)));
        QCOMPARE(faults.at(1), "14.json: expected an object");
    }

    void aChildThatIsMissingIsLeftOutAlone()
    {
        const QJsonArray children{object("{'view': 99, 'caption': 'x'}"),
                                  object("{'view': 11, 'caption': 'y', 'link': {'PRICE': 'PRICE'}}"),
                                  object("{'view': 11, 'caption': 'z', 'link': {'S': 'SYMBOL'}}")};
        m_fixture->write("a/10.json",
                         changed(ServiceFixture::tableDocument(), {"childViews"}, children).toObject());

        const ViewLibrary library(m_fixture->viewFolder(), *m_database);

        QCOMPARE(library.faults(),
                 QStringList({"a/10.json / childViews[0].view: no view 99; the child is left out",
                              "a/10.json / childViews[1].link: view 11 has no filter row for \"PRICE\"; the "
                              "child is left out"}));
        QCOMPARE(extension(configuration(library, 10), "childView").size(), 1);
    }

private:
    std::unique_ptr<ServiceFixture> m_fixture;
    std::unique_ptr<Database> m_database;
};

SUBJECT_TEST_MAIN(TestViewDocuments)
#include "test_viewdocuments.moc"
