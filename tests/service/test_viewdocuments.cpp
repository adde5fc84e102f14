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

/// The text at a path such as "Bands/*/Caption", "*" for each in turn; documents within texts are read.
QString textAt(const QJsonValue &value, const QStringList &path)
{
    const QString text = value.toString();
    if (path.isEmpty())
        return value.toVariant().toString();
    if (text.startsWith('[') || text.startsWith('{'))
        return textAt(QJsonDocument::fromJson('[' + text.toUtf8() + ']').array().at(0), path);
    if (value.isObject())
        return textAt(value.toObject().value(path.first()), path.mid(1));
    const QJsonArray array = value.toArray();
    if (path.first() != "*")
        return textAt(array.at(path.first().toInt()), path.mid(1));
    QStringList texts;
    for (const QJsonValue &element : array)
        texts << textAt(element, path.mid(1));
    return texts.join(' ');
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
        m_database = m_fixture->openDatabase();
    }

    void cleanup()
    {
        m_database.reset();
        m_fixture.reset();
        endMessages();
    }

    void configurationIsPackedForTheWire_data()
    {
        QTest::addColumn<QString>("value");
        testRow("Bands/*/SN", "1 2 3 4 5 6");
        testRow("Bands/*/FieldName", "SYMBOL BAND_1 NAME BAND_2 PRICE DAY");
        testRow("Bands/*/Caption", "代码 组 名\"称 价 价格 日");
        testRow("Bands/*/OwnerBand", "  BAND_1 BAND_1 BAND_2 ");
        testRow("Bands/*/Level", "1 1 2 2 3 1");
        testRow("Object_View_Config/*/obj_prop_name", "SYMBOL BAND_1 NAME BAND_2 PRICE DAY SECTOR");
        testRow("Object_View_Config/*/vw_sts", "1 1 1 1 0 1 1");
        testRow("Object_View_Config/1/ots_cfg/ColumnType", "Band");
        testRow("Object_View_Config/4/ots_cfg/ColumnType", "BandedGridColumn");
        testRow("Object_View_Config/4/ots_cfg/ValueType", "Decimal");
        testRow("Object_View_Config/6/ots_cfg/ValueType", "Int32");
        testRow("Object_View/0/obj_vw_name", "行情 \"一\"");
        testRow("isPaged", "1");
        testRow("IsGroup", "0");
        testRow("pageSize", "5");
        testRow("Order", "PRICE DESC,SYMBOL ASC");
        testRow("isShowChild", "1");
        testRow("ObjViewType", "ViewDataTable");
        testRow("filters/0/ParameterCategory", "1");
        testRow("filters/0/DataSourceFilterParams/R", "x");
        testRow("childView/0/ObjShowName", "11");
        // What links to a parameter of the child is told from what links to a field.
        testRow("childView/0/Propertyparams", "SYMBOL=数据源.S;SECTOR=SECTOR");
    }

    void configurationIsPackedForTheWire()
    {
        QFETCH(QString, value);
        const ViewLibrary library(m_fixture->viewFolder(), *m_database);
        QCOMPARE(library.faults(), QStringList());

        const QStringList path = QString(QTest::currentDataTag()).split('/');
        QJsonObject whole = configuration(library, 10);
        if (!whole.contains(path.first())) {
            const QJsonObject property = viewProperty(whole, path.first());
            whole.insert(path.first(), property.value(path.size() > 1 ? "ext_prop_val" : "prop_val"));
        }

        QCOMPARE(textAt(whole, path), value);
        QCOMPARE(viewProperty(whole, "BandsLevel").value("BandsLevel"), QJsonValue(3));
        QCOMPARE(viewProperty(configuration(library, 12), "IsCross").value("prop_val"), QJsonValue("1"));
    }

    void faultsNameFileAndPlace_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("fault");

        const auto row = [](const char *path, const QJsonValue &value, const char *fault) {
            testRow(fault, path, value, QString("a/10.json / ") + fault);
        };
        row("colour", 1, "colour: unknown key; known are id, name");
        row("id", "10", "id: expected a whole number, found \"10\"");
        row("id", 13, "id: 13 is not the file's name");
        row("sql", "DROP TABLE price", "sql: the statement has to begin with SELECT");
        row("sql", "SELECT 1; SELECT 2", "sql: position 9: \";\" is not allowed");
        row("sql", "SELECT * FROM price WHERE PRICE > :LOW", "sql: the parameter :LOW is not in");
        row("sql", "SELECT NOPE FROM price", "sql: the database does not accept the statement");
        row("params/EXCHANGE", true, "params.EXCHANGE: expected a text, a number");
        row("order", "PRICE DOWN", "order: \"PRICE DOWN\" is not a column with ASC or DESC");
        row("order", "NOPE ASC", "order: no column \"NOPE\" in sql; columns are SYMBOL, NAME");
        row("key", "NOPE", "key: no column \"NOPE\"");
        row("properties/isPagd", true, "properties.isPagd: unknown key");
        row("properties/isPaged", "1", "properties.isPaged: expected true or false, found \"1\"");
        row("bands", QJsonArray(), "bands: a view needs bands or a chart");
        row("bands/1/children/1/children/0/FieldName", "PRCE",
            "bands[1].children[1].children[0].FieldName: no column \"PRCE\"");
        row("bands/1/children/0/FieldName", "SYMBOL",
            "bands[1].children[0].FieldName: \"SYMBOL\" stands twice");
        row("bands/0/Width", "80", "bands[0].Width: expected a number, found \"80\"");
        row("bands/1/children", QJsonArray(), "bands[1].children: a band needs at least one column");
        row("filters/0/FieldName", "NOPE", "filters[0].FieldName: no parameter \"NOPE\" in params");
        row("filters/1/FieldName", "NOPE", "filters[1].FieldName: no column \"NOPE\"");
        row("childViews/0/link/S", "NOPE", "childViews[0].link.S: no column \"NOPE\"");
        row("products", QJsonArray(), "products: expected a product at least");
        row("products", "a,b", "products: \"a,b\" is no product's name");
        row("block", "NOPE", "block: no column \"NOPE\"");
        row("block", object("{'condition': 'SECTOR = 1'}"), "block.condition: the condition takes the one");
        row("chart", object("{'XFieldName': 'DAY', 'ChartDataConfigs': [{'FieldName': 'NOPE'}]}"),
            "chart.ChartDataConfigs[0].FieldName: no column \"NOPE\"");
        row("cross", object("{'rows': ['DAY'], 'column': 'NOPE', 'values': ['PRICE']}"),
            "cross.column: no column \"NOPE\"");
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
