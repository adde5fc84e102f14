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
    const QJsonArray entries = configuration.value(QStringLiteral("View_Config")).toArray();
    for (const QJsonValue &entry : entries) {
        if (entry.toObject().value(QStringLiteral("prop_name")).toString() == name)
            return entry.toObject();
    }
    return {};
}

QJsonArray extension(const QJsonObject &configuration, const QString &name)
{
    const QString text = viewProperty(configuration, name).value(QStringLiteral("ext_prop_val")).toString();
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
    void init();
    void cleanup();
    void bandsTravelAsTextWithTheirOwners();
    void everyColumnHasItsSettings();
    void propertiesTravelAsText();
    void linksTellParametersFromFields();
    void faultsNameFileAndPlace_data();
    void faultsNameFileAndPlace();
    void otherDocumentsAreServedBesideABadOne();
    void textThatIsNoJsonIsLocatedByLine();
    void aChildThatIsMissingIsLeftOutAlone();

private:
    std::unique_ptr<ServiceFixture> m_fixture;
    std::unique_ptr<Database> m_database;
};

void TestViewDocuments::init()
{
    beginMessages();
    m_fixture = std::make_unique<ServiceFixture>();
    m_fixture->writeStandardViews();
    m_database = std::make_unique<Database>(m_fixture->databaseAddress());
    QString fault;
    QVERIFY2(m_database->open(&fault), qPrintable(fault));
}

void TestViewDocuments::cleanup()
{
    m_database.reset();
    m_fixture.reset();
    endMessages();
}

void TestViewDocuments::bandsTravelAsTextWithTheirOwners()
{
    const ViewLibrary library(m_fixture->viewFolder(), *m_database);
    QCOMPARE(library.faults(), QStringList());

    QStringList lines;
    const QJsonArray bands = extension(configuration(library, 10), QStringLiteral("Bands"));
    for (const QJsonValue &value : bands) {
        const QJsonObject band = value.toObject();
        lines << QStringLiteral("%1 %2 %3 in '%4' level %5")
                     .arg(band.value(QStringLiteral("SN")).toInt())
                     .arg(band.value(QStringLiteral("FieldName")).toString(),
                          band.value(QStringLiteral("Caption")).toString(),
                          band.value(QStringLiteral("OwnerBand")).toString())
                     .arg(band.value(QStringLiteral("Level")).toInt());
    }

    QCOMPARE(lines, QStringList({QStringLiteral("1 SYMBOL 代码 in '' level 1"),
                                 QStringLiteral("2 BAND_1 组 in '' level 1"),
                                 QStringLiteral("3 NAME 名\"称 in 'BAND_1' level 2"),
                                 QStringLiteral("4 BAND_2 价 in 'BAND_1' level 2"),
                                 QStringLiteral("5 PRICE 价格 in 'BAND_2' level 3"),
                                 QStringLiteral("6 DAY 日 in '' level 1")}));
}

void TestViewDocuments::everyColumnHasItsSettings()
{
    const ViewLibrary library(m_fixture->viewFolder(), *m_database);

    QStringList lines;
    const QJsonArray entries =
        configuration(library, 10).value(QStringLiteral("Object_View_Config")).toArray();
    for (const QJsonValue &value : entries) {
        const QJsonObject entry = value.toObject();
        const QJsonObject settings =
            QJsonDocument::fromJson(entry.value(QStringLiteral("ots_cfg")).toString().toUtf8()).object();
        lines << QStringList{entry.value(QStringLiteral("obj_prop_name")).toString(),
                             entry.value(QStringLiteral("vw_sts")).toString(),
                             settings.value(QStringLiteral("ColumnType")).toString(),
                             settings.value(QStringLiteral("ValueType")).toString()}
                     .join(QLatin1Char(' '));
    }

    QCOMPARE(lines,
             QStringList(
                 {QStringLiteral("SYMBOL 1 BandedGridColumn String"), QStringLiteral("BAND_1 1 Band String"),
                  QStringLiteral("NAME 1 BandedGridColumn String"), QStringLiteral("BAND_2 1 Band String"),
                  QStringLiteral("PRICE 0 BandedGridColumn Decimal"),
                  QStringLiteral("DAY 1 BandedGridColumn DateTime"),
                  QStringLiteral("SECTOR 1 BandedGridColumn Int32")}));
}

void TestViewDocuments::propertiesTravelAsText()
{
    const ViewLibrary library(m_fixture->viewFolder(), *m_database);
    const QJsonObject table = configuration(library, 10);
    const auto text = [](const QJsonObject &configuration, const char *name) {
        return viewProperty(configuration, QLatin1String(name)).value(QStringLiteral("prop_val"));
    };

    QCOMPARE(text(table, "isPaged"), QJsonValue(QStringLiteral("1")));
    QCOMPARE(text(table, "IsGroup"), QJsonValue(QStringLiteral("0")));
    QCOMPARE(text(table, "pageSize"), QJsonValue(QStringLiteral("5")));
    QCOMPARE(text(table, "Order"), QJsonValue(QStringLiteral("PRICE DESC,SYMBOL ASC")));
    QCOMPARE(text(table, "isShowChild"), QJsonValue(QStringLiteral("1")));
    QCOMPARE(text(table, "ObjViewType"), QJsonValue(QStringLiteral("ViewDataTable")));
    QCOMPARE(viewProperty(table, QStringLiteral("BandsLevel")).value(QStringLiteral("BandsLevel")),
             QJsonValue(3));
    QCOMPARE(text(configuration(library, 12), "IsCross"), QJsonValue(QStringLiteral("1")));
    QCOMPARE(table.value(QStringLiteral("Object_View"))
                 .toArray()
                 .at(0)
                 .toObject()
                 .value(QStringLiteral("obj_vw_name")),
             QJsonValue(QStringLiteral("行情 \"一\"")));
    const QJsonObject combo = extension(table, QStringLiteral("filters")).at(0).toObject();
    QCOMPARE(combo.value(QStringLiteral("ParameterCategory")), QJsonValue(1));
    QCOMPARE(combo.value(QStringLiteral("DataSourceFilterParams")),
             QJsonValue(QStringLiteral("{\"R\":\"x\"}")));
}

void TestViewDocuments::linksTellParametersFromFields()
{
    const ViewLibrary library(m_fixture->viewFolder(), *m_database);

    const QJsonObject child =
        extension(configuration(library, 10), QStringLiteral("childView")).at(0).toObject();

    QCOMPARE(child.value(QStringLiteral("ObjShowName")), QJsonValue(QStringLiteral("11")));
    QCOMPARE(child.value(QStringLiteral("Propertyparams")),
             QJsonValue(QStringLiteral("SYMBOL=数据源.S;SECTOR=SECTOR")));
}

void TestViewDocuments::faultsNameFileAndPlace_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("fault");

    const auto row = [](const char *path, const QJsonValue &value, const char *fault) {
        testRow(fault, QString::fromUtf8(path), value, QString::fromUtf8(fault));
    };
    row("colour", 1, "a/10.json / colour: unknown key; known are id, name");
    row("id", QStringLiteral("10"), "a/10.json / id: expected a whole number, found \"10\"");
    row("id", 13, "a/10.json / id: 13 is not the file's name");
    row("sql", QStringLiteral("DROP TABLE price"), "a/10.json / sql: the statement has to begin with SELECT");
    row("sql", QStringLiteral("SELECT 1; SELECT 2"), "a/10.json / sql: position 9: \";\" is not allowed");
    row("sql", QStringLiteral("SELECT * FROM price WHERE PRICE > :LOW"),
        "a/10.json / sql: the parameter :LOW is not in");
    row("sql", QStringLiteral("SELECT NOPE FROM price"),
        "a/10.json / sql: the database does not accept the statement");
    row("params/EXCHANGE", true, "a/10.json / params.EXCHANGE: expected a text, a number");
    row("order", QStringLiteral("PRICE DOWN"),
        "a/10.json / order: \"PRICE DOWN\" is not a column with ASC or DESC");
    row("order", QStringLiteral("NOPE ASC"),
        "a/10.json / order: no column \"NOPE\" in sql; columns are SYMBOL, NAME");
    row("key", QStringLiteral("NOPE"), "a/10.json / key: no column \"NOPE\"");
    row("properties/isPagd", true, "a/10.json / properties.isPagd: unknown key");
    row("properties/isPaged", QStringLiteral("1"),
        "a/10.json / properties.isPaged: expected true or false, found \"1\"");
    row("bands", QJsonArray(), "a/10.json / bands: a view needs bands or a chart");
    row("bands/1/children/1/children/0/FieldName", QStringLiteral("PRCE"),
        "a/10.json / bands[1].children[1].children[0].FieldName: no column \"PRCE\"");
    row("bands/1/children/0/FieldName", QStringLiteral("SYMBOL"),
        "a/10.json / bands[1].children[0].FieldName: \"SYMBOL\" stands twice");
    row("bands/0/Width", QStringLiteral("80"), "a/10.json / bands[0].Width: expected a number, found \"80\"");
    row("bands/1/children", QJsonArray(), "a/10.json / bands[1].children: a band needs at least one column");
    row("filters/0/FieldName", QStringLiteral("NOPE"),
        "a/10.json / filters[0].FieldName: no parameter \"NOPE\" in params");
    row("filters/1/FieldName", QStringLiteral("NOPE"),
        "a/10.json / filters[1].FieldName: no column \"NOPE\"");
    row("childViews/0/link/S", QStringLiteral("NOPE"),
        "a/10.json / childViews[0].link.S: no column \"NOPE\"");
    row("products", QJsonArray(), "a/10.json / products: expected a product at least");
    row("products", QStringLiteral("a,b"), "a/10.json / products: \"a,b\" is no product's name");
    row("block", QStringLiteral("NOPE"), "a/10.json / block: no column \"NOPE\"");
    row("block", object("{'condition': 'SECTOR = 1'}"),
        "a/10.json / block.condition: the condition takes the one");
    row("chart", object("{'XFieldName': 'DAY', 'ChartDataConfigs': [{'FieldName': 'NOPE'}]}"),
        "a/10.json / chart.ChartDataConfigs[0].FieldName: no column \"NOPE\"");
    row("cross", object("{'rows': ['DAY'], 'column': 'NOPE', 'values': ['PRICE']}"),
        "a/10.json / cross.column: no column \"NOPE\"");
}

void TestViewDocuments::faultsNameFileAndPlace()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    QFETCH(QString, fault);
    allowWarnings(QStringLiteral("failed: "));
    m_fixture->write(
        QStringLiteral("a/10.json"),
        changed(ServiceFixture::tableDocument(), path.split(QLatin1Char('/')), value).toObject());

    const ViewLibrary library(m_fixture->viewFolder(), *m_database);

    QVERIFY(!library.view(10));
    QVERIFY2(library.faults().value(0).startsWith(fault),
             qPrintable(library.faults().join(QLatin1Char('\n'))));
}

void TestViewDocuments::otherDocumentsAreServedBesideABadOne()
{
    m_fixture->write(QStringLiteral("c/11.json"), object("{'id': 11}"));
    m_fixture->write(QStringLiteral("blocks.json"), object("{'blocks': [{'securityType': 'x'}]}"));

    const ViewLibrary library(m_fixture->viewFolder(), *m_database);

    QCOMPARE(library.viewCount(), 3);
    QVERIFY(library.catalogue().blocks().sql.text.isEmpty());
    QVERIFY(!library.catalogue().topic(2).isEmpty());
    QVERIFY(library.faults().contains(
        QStringLiteral("blocks.json / blocks[0].securityType: expected a whole number, found \"x\"")));
    QVERIFY(library.faults().contains(QStringLiteral("c/11.json / id: 11 is taken by a/b/11.json")));
}

void TestViewDocuments::textThatIsNoJsonIsLocatedByLine()
{
    m_fixture->write(QStringLiteral("13.json"), QByteArray("{\n  \"id\": 13,\n  \"name\" 1\n}"));
    m_fixture->write(QStringLiteral("14.json"), QByteArray("[]"));

    const QStringList faults = ViewLibrary(m_fixture->viewFolder(), *m_database).faults();

    QCOMPARE(faults.size(), 2);
    QVERIFY2(faults.at(0).startsWith(QStringLiteral("13.json: line 3, byte ")), qPrintable(faults.at(0)));
    QCOMPARE(faults.at(1), QStringLiteral("14.json: expected an object"));
}

void TestViewDocuments::aChildThatIsMissingIsLeftOutAlone()
{
    const QJsonArray children{object("{'view': 99, 'caption': 'x'}"),
                              object("{'view': 11, 'caption': 'y', 'link': {'PRICE': 'PRICE'}}"),
                              object("{'view': 11, 'caption': 'z', 'link': {'S': 'SYMBOL'}}")};
    m_fixture->write(
        QStringLiteral("a/10.json"),
        changed(ServiceFixture::tableDocument(), {QStringLiteral("childViews")}, children).toObject());

    const ViewLibrary library(m_fixture->viewFolder(), *m_database);

    QCOMPARE(library.faults(),
             QStringList({QStringLiteral("a/10.json / childViews[0].view: no view 99; the child is left out"),
                          QStringLiteral(
                              "a/10.json / childViews[1].link: view 11 has no filter row for \"PRICE\"; the "
                              "child is left out")}));
    QCOMPARE(extension(configuration(library, 10), QStringLiteral("childView")).size(), 1);
}

SUBJECT_TEST_MAIN(TestViewDocuments)

#include "test_viewdocuments.moc"
