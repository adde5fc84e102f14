#include "servicefixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QtTest>

#include <libpq-fe.h>

namespace {

QStringList priceRows()
{
    QStringList statements{"CREATE TABLE price (SYMBOL TEXT PRIMARY KEY, NAME TEXT, SECTOR INTEGER,"
                           " PRICE DOUBLE PRECISION, DAY TEXT, EXCHANGE TEXT)"};
    for (int i = 1; i <= 12; ++i) {
        const QString number = QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0'));
        const QString day = "2020-01-" + number + (i % 3 == 0 ? " 15:30:00" : "");
        statements << QStringLiteral("INSERT INTO price VALUES ('S%1', '名\"%1\\\t', %2, %3, '%4', '%5')")
                          .arg(number)
                          .arg((i - 1) % 3 + 1)
                          .arg(i == 5 ? "NULL" : QString::number(i * 1.5))
                          .arg(day, QLatin1String(i % 2 ? "A" : "B"));
    }
    return statements;
}

} // namespace

ServiceFixture::ServiceFixture()
    : m_schema('t' + QUuid::createUuid().toString(QUuid::Id128))
{
    if (isPostgres())
        change({"CREATE SCHEMA " + m_schema});
    change(priceRows()
           << "CREATE TABLE curve (D TEXT, TENOR TEXT, N DOUBLE PRECISION, RATE DOUBLE "
              "PRECISION, VOL INTEGER)"
           << "INSERT INTO curve VALUES ('2020-01-01','10年',10,3.1,5), ('2020-01-01','1年',1,2.0,6),"
              " ('2020-01-01','3月',0.25,1.5,7), ('2020-01-02','1年',1,2.1,NULL),"
              " ('2020-01-02','10年',10,3.2,8)");
    writeViews();
}

ServiceFixture::~ServiceFixture()
{
    if (isPostgres())
        change({QStringLiteral("DROP SCHEMA %1 CASCADE").arg(m_schema)});
}

QString ServiceFixture::databaseAddress() const
{
    if (!isPostgres())
        return m_folder.filePath("test.sqlite");
    return qEnvironmentVariable("SUBJECT_TEST_POSTGRES") + "&options=-csearch_path%3D" + m_schema;
}

std::unique_ptr<service::Database> ServiceFixture::openDatabase() const
{
    auto database = std::make_unique<service::Database>(databaseAddress());
    QString fault;
    if (!database->open(&fault))
        qFatal("%s", qPrintable(fault));
    return database;
}

void ServiceFixture::write(const QString &name, const QByteArray &text) const
{
    const QString path = QDir(viewFolder()).filePath(name);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

void ServiceFixture::write(const QString &name, const QJsonObject &document) const
{
    write(name, QJsonDocument(document).toJson());
}

void ServiceFixture::change(const QStringList &statements) const
{
    isPostgres() ? changeServer(statements) : changeFile(statements);
}

void ServiceFixture::changeServer(const QStringList &statements) const
{
    const std::unique_ptr<PGconn, decltype(&PQfinish)> connection(
        PQconnectdb(databaseAddress().toUtf8().constData()), &PQfinish);
    const QByteArray text = "SET client_min_messages = warning;" + statements.join(';').toUtf8();
    const std::unique_ptr<PGresult, decltype(&PQclear)> result(PQexec(connection.get(), text.constData()),
                                                               &PQclear);
    QVERIFY2(PQresultStatus(result.get()) == PGRES_COMMAND_OK, PQerrorMessage(connection.get()));
}

void ServiceFixture::changeFile(const QStringList &statements) const
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "writer");
        database.setDatabaseName(databaseAddress());
        QVERIFY(database.open());
        QSqlQuery query(database);
        QVERIFY(query.exec("PRAGMA synchronous = OFF"));
        QVERIFY(database.transaction());
        for (const QString &statement : statements)
            QVERIFY2(query.exec(statement), qPrintable(query.lastError().text() + statement));
        QVERIFY(database.commit());
    }
    QSqlDatabase::removeDatabase("writer");
}

void ServiceFixture::breakConnections() const
{
    if (isPostgres())
        change({"DO 'BEGIN PERFORM pg_terminate_backend(pid) FROM pg_stat_activity"
                " WHERE application_name = ''subject-service''; END'"});
}

QJsonObject ServiceFixture::tableDocument()
{
    return object(R"({
        'id': 10, 'name': '行情 "一"', 'source': 'made for the tests',
        '// note': 'a comment',
        'sql': ['SELECT SYMBOL, NAME, SECTOR, PRICE, DAY -- ; no end :HERE', 'FROM price',
                'WHERE (:EXCHANGE = ?? OR EXCHANGE = :EXCHANGE) AND SECTOR <= :TOP'],
        'params': {'EXCHANGE': '', 'TOP': 9}, 'key': 'SYMBOL', 'order': 'PRICE DESC,SYMBOL ASC',
        'properties': {'isPaged': true, 'pageSize': 5, 'FrozenCount': 1, 'IsGroup': false},
        'bands': [
            {'FieldName': 'SYMBOL', 'Caption': '代码', 'Width': 80},
            {'Caption': '组', 'children': [
                {'FieldName': 'NAME', 'Caption': '名"称'},
                {'Caption': '价', 'children': [
                    {'FieldName': 'PRICE', 'Caption': '价格', 'ValueType': 'Decimal', 'Visible': false}]}]},
            {'FieldName': 'DAY', 'Caption': '日', 'ValueType': 'DateTime'}],
        'fields': {'SECTOR': {'ValueType': 'Int32'}},
        'filters': [
            {'ClassName': 'ComboBox', 'FieldName': 'EXCHANGE', 'ParameterCategory': 1, 'DataSourceName': 'NAMES',
             'DataSourceFilterParams': {'R': 'x'}},
            {'ClassName': 'TextEdit', 'FieldName': 'NAME', 'Operator': 'LIKE'}],
        'childViews': [{'view': 11, 'caption': '子', 'link': {'S': 'SYMBOL', 'SECTOR': 'SECTOR'}}],
        'block': 'SECTOR'})");
}

void ServiceFixture::writeViews() const
{
    write("a/10.json", tableDocument());
    write("a/b/11.json", object(R"({
        'id': 11, 'name': '子', 'sql': 'SELECT SYMBOL, SECTOR, PRICE FROM price WHERE SYMBOL = :S OR :S = ??',
        'params': {'S': ''}, 'bands': [{'FieldName': 'SYMBOL'}, {'FieldName': 'PRICE', 'ValueType': 'Decimal'}],
        'fields': {'SECTOR': {'ValueType': 'Int32'}},
        'block': {'condition': 'SECTOR * 10 IN (:CODES) OR 1 = 0'},
        'filters': [{'ClassName': 'VirtualCntrl', 'FieldName': 'S', 'ParameterCategory': 1},
                    {'ClassName': 'LabelControl', 'FieldName': 'SECTOR', 'Operator': '='}]})"));
    write("12.json", object(R"({
        'id': 12, 'name': '曲线', 'sql': 'SELECT D, TENOR, N, RATE, VOL FROM curve', 'order': 'D DESC',
        'bands': [{'FieldName': 'D', 'Caption': '日', 'ValueType': 'DateTime'},
                  {'Caption': '利率', 'children': [{'FieldName': 'RATE', 'Caption': '率', 'ValueType': 'Decimal'}]}],
        'cross': {'rows': ['D'], 'column': 'TENOR', 'values': ['RATE'], 'caption': '期限%1', 'columnOrder': 'N'}})"));
    write("navigation.json", object(R"({'topics': [{'code': 2, 'name': '股票', 'nodes': [
        {'code': 3, 'caption': '组', 'nodes': [{'code': 4, 'caption': '页', 'view': 10},
                                              {'code': 5, 'caption': '网', 'url': 'http://x/'}]}]}]})"));
    write("blocks.json", object(R"({'blocks': [
        {'securityType': 10, 'nodes': [{'code': 1, 'name': '甲', 'nodes': [{'code': 2, 'name': '乙'}]}]},
        {'securityType': 20, 'nodes': [{'code': 7, 'name': '丙'}]}]})"));
    write("constants.json", object(R"({'rows': [
        {'VALUE': 1, 'NAME': '亚洲', 'TYPE': 7, 'TYPE_DESC': '地区', 'FILTER1': 0}]})"));
    write("lists.json", object(R"({'lists': {
        'NAMES': {'sql': 'SELECT DISTINCT EXCHANGE AS NAME, EXCHANGE AS VALUE FROM price ORDER BY 1'},
        'WRITTEN': {'rows': [{'NAME': '甲', 'VALUE': 'a'}, {'NAME': '乙'}]}}})"));
}

QJsonObject object(const char *text)
{
    QByteArray json(text);
    json.replace('"', "\\\"").replace('\'', '"').replace("??", "''");
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("bad JSON in a test: %s at %d", qPrintable(error.errorString()), error.offset);
    return document.object();
}
