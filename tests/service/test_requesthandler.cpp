#include "requesthandler.h"
#include "servicefixture.h"
#include "subjecttest.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace service;

namespace {

/// Values of one field of all rows, joined by blanks.
QString values(const QJsonValue &rows, const QString &field)
{
    QStringList texts;
    const QJsonArray array = rows.toArray();
    for (const QJsonValue &row : array) {
        const QJsonValue value = row.toObject().value(field);
        texts << (value.isUndefined() ? "-" : value.toVariant().toString());
    }
    return texts.join(' ');
}

QString summaryText(const QJsonObject &data)
{
    QStringList items;
    const QJsonArray array = data.value("Summary").toArray();
    for (const QJsonValue &value : array) {
        const QJsonObject item = value.toObject();
        if (item.value("value").isDouble())
            items << QString("%1=%2").arg(item.value("Item").toString()).arg(item.value("value").toInt());
    }
    return items.join(' ');
}

QStringList gridColumns(const QJsonObject &data)
{
    QStringList lines;
    const QJsonArray summary = data.value("Summary").toArray();
    const QByteArray text = summary.last().toObject().value("value").toString().toUtf8();
    const QJsonArray columns = QJsonDocument::fromJson(text).array();
    for (const QJsonValue &value : columns) {
        const QJsonObject column = value.toObject();
        lines << QString("%1 '%2' in '%3' %4 %5")
                     .arg(column.value("fieldName").toString(), column.value("caption").toString(),
                          column.value("ownerBand").toString(), column.value("columnType").toString())
                     .arg(column.value("showStatus").toInt());
    }
    return lines;
}

} // namespace

class TestRequestHandler : public SubjectTest
{
    Q_OBJECT

private slots:
    void init()
    {
        beginMessages();
        m_fixture = std::make_unique<ServiceFixture>();
        m_database = m_fixture->openDatabase();
        m_library = std::make_unique<ViewLibrary>(m_fixture->viewFolder(), *m_database);
        QCOMPARE(m_library->faults(), QStringList());
    }

    void cleanup()
    {
        m_library.reset();
        m_database.reset();
        m_fixture.reset();
        endMessages();
    }

    void rowsComeAsTheRequestAsks_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("symbols");
        QTest::addColumn<QString>("summary");

        testRow("first page", "'page': 1, 'size': 3", "S12 S11 S10", "rcount=12 pindex=1 psize=3");
        testRow("last page, not full", "'page': 3, 'size': 5", "S01 S05", "rcount=12 pindex=3 psize=5");
        testRow("page behind the end", "'page': 9, 'size': 5", "", "rcount=12 pindex=9 psize=5");
        testRow("all rows", "'filter': '(PRICE > 13.5)'", "S12 S11 S10", "rcount=3 pindex=1 psize=3");
        testRow("no rows", "'filter': '(PRICE > 999)'", "", "rcount=0 pindex=1 psize=1");
        testRow("order of the request", "'order': {'SYMBOL': 1}, 'page': 1, 'size': 2", "S01 S02",
                "rcount=12 pindex=1 psize=2");
        testRow("terms in the view's sequence", "'order': {'SECTOR': 1, 'PRICE': -1}, 'page': 1, 'size': 2",
                "S12 S11", "rcount=12 pindex=1 psize=2");
        testRow("key breaks ties", "'order': {'SECTOR': -1}, 'page': 1, 'size': 2", "S03 S06",
                "rcount=12 pindex=1 psize=2");
        testRow("named parameter", "'EXCHANGE': 'B', 'page': 1, 'size': 2", "S12 S10",
                "rcount=6 pindex=1 psize=2");
        testRow("number parameter as text", "'TOP': '1', 'page': 1, 'size': 2", "S10 S07",
                "rcount=4 pindex=1 psize=2");
        testRow("filter", "'filter': '(NAME like :N) && (SECTOR == :S)', 'filterParams': {'N': '1', 'S': 2}",
                "S11", "rcount=1 pindex=1 psize=1");
        testRow("blocks", "'filterBlock': [3, '2'], 'page': 1, 'size': 2", "S12 S11",
                "rcount=8 pindex=1 psize=2");
        testRow("blocks beside a filter", "'filterBlock': [3], 'filter': '(PRICE < 6)'", "S03",
                "rcount=1 pindex=1 psize=1");
        testRow("no block checked", "'filterBlock': [], 'page': 1, 'size': 1", "S12",
                "rcount=12 pindex=1 psize=1");
        testRow("other keys of the client", "'auth': {'userId': 'u'}, 'keywords': 'x', 'page': 1, 'size': 1",
                "S12", "rcount=12 pindex=1 psize=1");
    }

    void rowsComeAsTheRequestAsks()
    {
        QFETCH(QString, body);
        QFETCH(QString, symbols);
        QFETCH(QString, summary);

        const QJsonObject data = view("{'obj_vw_id': 10, 'flag': 1, " + body.toUtf8() + "}");

        QCOMPARE(values(data.value("Data"), "SYMBOL"), symbols);
        QCOMPARE(summaryText(data), summary);
    }

    void rowsCarryTypedValues()
    {
        const QJsonObject request = object("{'obj_vw_id': 10, 'flag': 1, 'filter': '(SYMBOL in :S)', "
                                           "'filterParams': {'S': ['S03', 'S05']}}");
        const Reply reply = RequestHandler(*m_library, Limits())
                                .subjectData(QJsonDocument(request).toJson(), Identity(), *m_database);

        const QByteArray third =
            QByteArray::number(QDateTime(QDate(2020, 1, 3), QTime(15, 30)).toMSecsSinceEpoch());
        const QByteArray fifth =
            QByteArray::number(QDateTime(QDate(2020, 1, 5), QTime(0, 0)).toMSecsSinceEpoch());
        const QByteArray rows =
            "{'SYMBOL':'S03','NAME':'名|'03|||t','SECTOR':3,'PRICE':4.5,'DAY':" + third +
            "},{'SYMBOL':'S05','NAME':'名|'05|||t','SECTOR':2,'PRICE':null,'DAY':" + fifth + '}';
        QByteArray expected = "{'state':1,'msg':'','extend':null,'data':{'Data':[" + rows +
                              "],'Summary':[{'Item':'rcount','value':2},{'Item':'pindex','value':1},{'Item':'"
                              "psize','value':2}]}}";
        expected.replace('\'', '"').replace('|', '\\');
        QCOMPARE(reply.body, expected);
    }

    void partsHoldWhatTheFlagAsksFor()
    {
        QCOMPARE(view("{'obj_vw_id': 10, 'flag': 0}").keys().join(' '),
                 "Object_View Object_View_Config View_Config");
        QCOMPARE(view("{'obj_vw_id': '10', 'flag': '1'}").keys().join(' '), "Data Summary");
        QCOMPARE(view("{'obj_vw_id': 10, 'flag': 2}").keys().join(' '),
                 "Data Object_View Object_View_Config Summary View_Config");
    }

    void pagesFitTogether()
    {
        QStringList symbols;
        for (int page = 1; page <= 5; ++page) {
            const QByteArray body =
                "{'obj_vw_id': 11, 'flag': 1, 'size': 3, 'order': {'SECTOR': 1}, 'page': " +
                QByteArray::number(page) + '}';
            symbols << values(view(body).value("Data"), "SYMBOL");
        }

        QCOMPARE(symbols.join('|'), "S01 S04 S07|S10 S02 S05|S08 S11 S03|S06 S09 S12|");
    }

    void totalFollowsAChangeOfTheData()
    {
        const char *body = "{'obj_vw_id': 10, 'flag': 1, 'page': 1, 'size': 2}";
        QCOMPARE(summaryText(view(body)), "rcount=12 pindex=1 psize=2");

        m_fixture->change({"DELETE FROM price WHERE SYMBOL > 'S09'"});

        QCOMPARE(summaryText(view(body)), "rcount=9 pindex=1 psize=2");
    }

    void crossRowsHaveAColumnForEachValue()
    {
        const QJsonObject data = view("{'obj_vw_id': 12, 'flag': 2}");

        QCOMPARE(gridColumns(data),
                 QStringList({"D '日' in '' BandedGridColumn 1", "BAND_1 '利率' in '' Band 1",
                              "3月__RATE '期限3月' in 'BAND_1' BandedGridColumn 1",
                              "1年__RATE '期限1年' in 'BAND_1' BandedGridColumn 1",
                              "10年__RATE '期限10年' in 'BAND_1' BandedGridColumn 1"}));
        const QJsonValue rows = data.value("Data");
        QCOMPARE(values(rows, "10年__RATE"), "3.2 3.1");
        QCOMPARE(values(rows, "3月__RATE"), "- 1.5");
        QCOMPARE(summaryText(data), "rcount=2 pindex=1 psize=2");
        QCOMPARE(
            summaryText(view("{'obj_vw_id': 12, 'flag': 1, 'page': 2, 'size': 1, 'filter': '(N >= 1)'}")),
            "rcount=2 pindex=2 psize=1");
    }

    void severalCrossValuesStandInABand()
    {
        m_fixture->write("13.json", object(R"({
            'id': 13, 'name': 'x', 'sql': 'SELECT D, TENOR, RATE, VOL FROM curve WHERE N >= 1',
            'properties': {'IsCrossSortByDesc': true},
            'bands': [{'FieldName': 'RATE', 'Caption': '率'}, {'FieldName': 'VOL', 'Caption': '量', 'Visible': false},
                      {'FieldName': 'D', 'Caption': '日'}],
            'cross': {'rows': ['D'], 'column': 'TENOR', 'values': ['RATE', 'VOL']}})"));
        m_library = std::make_unique<ViewLibrary>(m_fixture->viewFolder(), *m_database);
        QCOMPARE(m_library->faults(), QStringList());

        const QJsonObject data = view("{'obj_vw_id': 13, 'flag': 2}");

        QCOMPARE(
            gridColumns(data),
            QStringList({"BAND_1年 '1年' in '' Band 1", "1年__RATE '率' in 'BAND_1年' BandedGridColumn 1",
                         "1年__VOL '量' in 'BAND_1年' BandedGridColumn 0", "BAND_10年 '10年' in '' Band 1",
                         "10年__RATE '率' in 'BAND_10年' BandedGridColumn 1",
                         "10年__VOL '量' in 'BAND_10年' BandedGridColumn 0",
                         "D '日' in '' BandedGridColumn 1"}));
        QCOMPARE(values(data.value("Data"), "10年__VOL"), "5 8");
    }

    void namedObjectsAreDelivered_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("expected");

        testRow("parents of a tree", "{'objId': 38, 'P_NODE_CODE': '2'}", "P_NODE_CODE", "0 2 3 3 -");
        testRow("views of a tree", "{'objId': 38, 'P_NODE_CODE': 2}", "OBJ_VW_ID", "0 0 10 0 -");
        testRow("constants behind the tree", "{'objId': 38, 'P_NODE_CODE': 2}", "NAME", "- - - - 亚洲");
        testRow("constants", "{'objId': 390}", "VALUE", "1");
        testRow("blocks of a type",
                "{'objId': 43, 'filter': '(SECU_TYP_CODE == :T)', 'filterParams': {'T': 10}}", "SECT_NAME",
                "甲 乙");
        testRow("parents of blocks", "{'objId': 43}", "P_SECT_ID", "0 1 0");
        testRow("list from SQL", "{'objName': 'NAMES', 'filter': '', 'filterParams': {}}", "NAME", "A B");
        testRow("list from SQL, filtered",
                "{'objName': 'NAMES', 'filter': '(VALUE != :V)', 'filterParams': {'V': 'A'}}", "NAME", "B");
        testRow("written list",
                "{'objName': 'WRITTEN', 'filter': '(NAME nin :N)', 'filterParams': {'N': '甲'}}", "NAME",
                "乙");
    }

    void namedObjectsAreDelivered()
    {
        QFETCH(QString, body);
        QFETCH(QString, field);
        QFETCH(QString, expected);

        const QJsonObject reply = ask(QJsonDocument(object(body.toUtf8())).toJson());

        QCOMPARE(values(reply.value("data"), field), expected);
    }

    void faultsAreRefused_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("message");

        const auto row = [](QByteArray body, const char *message) {
            testRow(message, body.replace('\'', '"'), QString::fromUtf8(message));
        };
        const auto viewRow = [&row](const char *members, const char *message) {
            row(QByteArray("{'obj_vw_id': 10, 'flag': 1, ") + members + '}', message);
        };
        row("", "body: byte ");
        row("[1]", "body: expected an object");
        row("{'flag':1,", "body: byte 1");
        row(QByteArray(100, '['), "body: nested more than 16 deep");
        row("{'a': {'b': [1], 'c': 1, '\\u0062': []}}", "body: byte 26: the key \"b\" stands twice");
        row("{}", "obj_vw_id: expected a whole number");
        row("{'obj_vw_id': 1e300, 'flag': 1}", "obj_vw_id: expected");
        row("{'obj_vw_id': 99, 'flag': 1}", "obj_vw_id: no view 99");
        row("{'obj_vw_id': 10, 'flag': 3}", "flag: expected 0, 1 or 2");
        viewRow("'page': 0, 'size': 5", "page: expected 1 to");
        viewRow("'page': 1, 'size': 1000000", "size: expected 1 to 100000, found 1000000");
        viewRow("'filter': ['x']", "filter: expected a text");
        viewRow("'filterParams': 'x'", "filterParams: expected an object");
        viewRow("'filter': '(X == 1)'", "filter: position 2: no field \"X\"");
        viewRow("'order': 'SYMBOL'", "order: expected an object");
        viewRow("'order': {'SYMBOL': 2}", "order.SYMBOL: expected 1 or -1");
        viewRow("'order': {'X': 1}", "order: no field \"X\"");
        viewRow("'filterBlock': 3", "filterBlock: expected an array");
        viewRow("'filterBlock': [{}]", "filterBlock[0]: expected a code");
        viewRow("'TOP': 'x'", "TOP: \"x\" is no number");
        viewRow("'TOP': [1]", "TOP: expected a text or a number");
        viewRow("'EXCHANGE': '[2020-99-99]'", "EXCHANGE: \"[2020-99-99]\" is no date");
        row("{'objId': 7}", "objId: no object 7");
        row("{'objId': 38, 'P_NODE_CODE': 9}", "P_NODE_CODE: no topic 9");
        row("{'objId': 43, 'filter': '(Y == 1)'}", "filter: position 2: no field \"Y\"");
        row("{'objName': 'NOPE'}", "objName: no list \"NOPE\"");
    }

    void faultsAreRefused()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, message);

        const QJsonObject reply = ask(body, 400);

        QCOMPARE(reply.value("state").toInt(), -400);
        const QString found = reply.value("msg").toString();
        QVERIFY2(found.startsWith(message), qPrintable(found));
    }

    void textsFromOutsideStayValues()
    {
        const QString attack = "x' OR 1=1; DROP TABLE price; --";
        const auto rows = [this](const QJsonObject &more, int status = 200) {
            QJsonObject body = object("{'obj_vw_id': 10, 'flag': 1}");
            for (auto it = more.begin(); it != more.end(); ++it)
                body.insert(it.key(), it.value());
            return summaryText(ask(QJsonDocument(body).toJson(), status).value("data").toObject());
        };

        const QString none = "rcount=0 pindex=1 psize=1";
        QCOMPARE(rows({{"filter", "(SYMBOL == :S)"}, {"filterParams", QJsonObject{{"S", attack}}}}), none);
        QCOMPARE(rows({{"EXCHANGE", attack}}), none);
        QCOMPARE(rows({{"filterBlock", QJsonArray{attack}}}), none);
        rows({{"order", QJsonObject{{"SYMBOL\" DESC; --", 1}}}}, 400);
        QCOMPARE(rows({}), "rcount=12 pindex=1 psize=12");
    }

    void databaseFaultIsTheServersFault()
    {
        m_fixture->change({"DROP TABLE price"});
        expectWarning(ServiceFixture::isPostgres() ? "relation \"price\" does not exist"
                                                   : "no such table: price");

        const QJsonObject reply = ask("{\"obj_vw_id\":10,\"flag\":1}", 500);

        QVERIFY(!reply.value("msg").toString().contains("price"));
        QCOMPARE(view("{'obj_vw_id': 12, 'flag': 1}").isEmpty(), false);
    }

    void theServersOwnTypesAreServed()
    {
        if (!ServiceFixture::isPostgres())
            QSKIP("SQLite has no such types");
        m_fixture->change(
            {"CREATE TABLE kinds (u uuid, d date, t timestamptz, b boolean, n numeric)",
             "INSERT INTO kinds SELECT CAST(md5(CAST(i AS text)) AS uuid), date '2020-01-01' + i,"
             " timestamp '2020-01-01 12:00:00.25' + i * interval '1 day', i % 2 = 0, i / 4.0"
             " FROM generate_series(1, 4) i"});
        m_fixture->write("14.json", object(R"({
            'id': 14, 'name': 'x', 'sql': 'SELECT * FROM kinds', 'key': 'U', 'block': 'U',
            'bands': [{'FieldName': 'U'}, {'FieldName': 'N', 'ValueType': 'Decimal'}, {'FieldName': 'B', 'ValueType': 'Int32'},
                      {'FieldName': 'D', 'ValueType': 'DateTime'}, {'FieldName': 'T', 'ValueType': 'DateTime'}]})"));
        m_library = std::make_unique<ViewLibrary>(m_fixture->viewFolder(), *m_database);
        QCOMPARE(m_library->faults(), QStringList());
        const auto numbers = [this](const QByteArray &more) {
            return values(view("{'obj_vw_id': 14, 'flag': 1" + more + "}").value("Data"), "N");
        };

        QCOMPARE(numbers(", 'order': {'T': 1}, 'filter': '(D >= [2020-01-03]) && (T != [2020-01-04])'"),
                 "0.5 0.75 1");
        QCOMPARE(numbers(", 'order': {'B': 1, 'D': -1}"), "0.75 0.25 1 0.5");
        QCOMPARE(numbers(", 'filter': '(B == 1) && (N < 0.75)'"), "0.5");
        QCOMPARE(numbers(", 'filter': '(U like :U)', 'filterParams': {'U': 'C4CA'}"), "0.25");
        QCOMPARE(numbers(", 'filterBlock': ['c4ca4238-a0b9-2382-0dcc-509a6f75849b', 3]"), "0.25");
        const QJsonArray rows =
            view("{'obj_vw_id': 14, 'flag': 1, 'order': {'D': 1}}").value("Data").toArray();
        const QDateTime noon(QDate(2020, 1, 2), QTime(12, 0));
        QCOMPARE(rows.first().toObject().value("T").toDouble(), double(noon.toMSecsSinceEpoch()));
    }

private:
    QJsonObject ask(const QByteArray &body, int status = 200) const
    {
        const RequestHandler handler(*m_library, Limits());
        const bool isNamed = body.contains("objId") || body.contains("objName");
        const Reply reply = isNamed ? handler.namedData(body, Identity(), *m_database)
                                    : handler.subjectData(body, Identity(), *m_database);
        const QJsonObject envelope = QJsonDocument::fromJson(reply.body).object();
        if (reply.status != status)
            qFatal("status %d: %s", reply.status, reply.body.constData());
        if (envelope.keys() != QStringList{"data", "extend", "msg", "state"})
            qFatal("no envelope: %s", reply.body.constData());
        return envelope;
    }

    QJsonObject view(const char *body, int status = 200) const
    {
        return ask(QJsonDocument(object(body)).toJson(), status).value("data").toObject();
    }

    std::unique_ptr<ServiceFixture> m_fixture;
    std::unique_ptr<Database> m_database;
    std::unique_ptr<ViewLibrary> m_library;
};

SUBJECT_TEST_MAIN(TestRequestHandler)
#include "test_requesthandler.moc"
