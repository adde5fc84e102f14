#include "filterrows.h"
#include "filterwidget/tfcheckcombox.h"
#include "filterwidget/tffilterwidget.h"
#include "net/tfdm.h"
#include "net/tfuc.h"
#include "servicefixture.h"
#include "subjecttest.h"
#include "tfcore/tfserviceconfig.h"

#include <QComboBox>
#include <QJsonDocument>
#include <QListWidget>
#include <QProcess>

namespace {
Row remote(const QString &className, const QString &field, const QString &list)
{
    Row r = row(className, field);
    r.DataSourceName = list;
    return r;
}
} // namespace
Q_DECLARE_METATYPE(Row)

/// The bar's requests, as they are, against the running data service over the fixture's twelve prices.
class TestFilterService : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_fixture.write("40.json", object(R"({
            'id': 40, 'name': '按月', 'order': 'SYMBOL ASC', 'key': 'SYMBOL',
            'sql': 'SELECT SYMBOL, SECTOR, PRICE, DAY, EXCHANGE, EXCHANGE AS PROVINCE,
                    substr(DAY, 1, 7) AS YM, CAST(substr(DAY, 1, 4) AS INTEGER) AS Y FROM price',
            'bands': [{'FieldName': 'SYMBOL'}, {'FieldName': 'DAY', 'ValueType': 'DateTime'}],
            'fields': {'SECTOR': {'ValueType': 'Int32'}, 'PRICE': {'ValueType': 'Decimal'},
                       'PROVINCE': {'ValueType': 'String'}, 'YM': {'ValueType': 'String'},
                       'Y': {'ValueType': 'Int32'}}})"));
        m_service.start(SERVICE_PROGRAM, {"--db", m_fixture.databaseAddress(), "--views",
                                          m_fixture.viewFolder(), "--port", "0"});
        while (!m_service.canReadLine() && m_service.waitForReadyRead(20000)) {
        }
        const QString line = QString::fromUtf8(m_service.readLine()).trimmed();
        QVERIFY2(line.startsWith("listening on "), qPrintable(line));
        TFServiceConfig::instance()->setHttpUrl("servercfg.ini:Subject", QUrl(line.mid(13)));
    }
    void cleanupTestCase()
    {
        m_service.kill();
        m_service.waitForFinished();
    }

    void everyShapeOfValueIsUnderstood_data()
    {
        QTest::addColumn<Row>("control");
        QTest::addColumn<QString>("symbols");
        const QString all = "01 02 03 04 05 06 07 08 09 10 11 12";
        testRow("a part of a text", row("TextEdit", "SYMBOL", "S1", "string", "LIKE"), "10 11 12");
        testRow("numbers as texts", row("TextEdit", "SECTOR", "1,3", "decimal", "IN"),
                "01 03 04 06 07 09 10 12");
        testRow("list of texts", row("TextEdit", "SYMBOL", "S01,S12", "string", "IN"), "01 12");
        testRow("not in a list", row("VirtualCntrl", "SECTOR", "1;3", "decimal", "NotIn"), "02 05 08 11");
        testRow("date in brackets", row("DateEdit", "DAY", "=date'2020-01-03'", "datetime", "<="),
                "01 02 03");
        testRow("days in brackets",
                row("DateTimeInterval", "DAY", "date'2020-01-05';date'2020-01-06'", "datetime"), "05 06");
        testRow("service date text in brackets", row("VirtualCntrl", "DAY", "2020-01-11", "datetime", ">="),
                "11 12");
        testRow("service date text", row("ReportDateSimple", "DAY", "=date'2019-12-31'", "", ">"), all);
        testRow("range of numbers", row("DecimalTextEditInterval", "PRICE", "2;4", "decimal"), "02");
        testRow("a year", withNames(row("SimpleYear", "Y", "2020", "decimal"), "2020年=1"), all);
        testRow("many years", withNames(row("MultYear", "Y", "2020", "", "="), "2019年=1;2020年=2"), all);
        testRow("month", row("YearMonthSimple", "YM", "=date'2019-12-01'", "string", ">="), all);
        testRow("months in quotes", withNames(row("YearMonthInterval", "", "", "DAY"), "2020年"), all);
        testRow("list entry", withNames(row("ComboBox", "SECTOR", "=3", "decimal"), "甲=1;broken;丙=3"),
                "03 06 09 12");
        testRow("ticked entries", withNames(row("CheckComboBox", "EXCHANGE", "", "string", "IN"), "A=A;Z=Z"),
                "01 03 05 07 09 11");
    }
    void everyShapeOfValueIsUnderstood()
    {
        QFETCH(Row, control);
        TFFilterWidget bar;
        bar.setFilterData({control});
        QTEST(symbolsOf(bar), "symbols");
    }

    void remoteListComesFromTheTableAndFiltersByProvince()
    {
        TFFilterWidget bar;
        // The answer for the first control comes when it is gone.
        bar.setFilterData({remote("ComboBox", "PROVINCE", "NAMES")});
        bar.setFilterData({remote("ComboBox", "PROVINCE", "NAMES")});
        auto *box = bar.findChild<QComboBox *>();
        QTRY_COMPARE(box->count(), 3);
        QCOMPARE(box->itemText(0), QString("未选择"));
        QCOMPARE(symbolsOf(bar).split(' ').size(), 12);
        box->setCurrentText("B");
        QCOMPARE(symbolsOf(bar), QString("02 04 06 08 10 12"));
    }

    void remoteCheckListTicksWhatComes()
    {
        TFFilterWidget bar;
        Row r = remote("CheckComboBox", "EXCHANGE", "NAMES");
        r.Operator = "IN";
        bar.setFilterData({r});
        auto *list = bar.findChild<QListWidget *>();
        QTRY_COMPARE(list->count(), 3);
        auto *control = bar.findChild<TFCheckCombox *>();
        list->item(1)->setCheckState(Qt::Unchecked);
        control->slotCheckStatusChanged(list->item(1), false);
        QCOMPARE(symbolsOf(bar), QString("02 04 06 08 10 12"));
    }

    void listThatFailsStaysEmpty()
    {
        TFFilterWidget bar;
        allowWarnings(".*");
        bar.setFilterData({remote("ComboBox", "PROVINCE", "NOBODY")});
        QVERIFY(!symbolsOf(bar).isEmpty());
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(bar.findChild<QComboBox *>()->findText("A") < 0);
    }

private:
    /// Numbers of the symbols that the service answers to the bar's request; the reply where it has none.
    QString symbolsOf(TFFilterWidget &bar)
    {
        QList<FilterParam::DataSourceFilter> keys;
        TFUc::Filters conditions;
        bar.finalFilter(keys, conditions);
        TFUc::Parameters parameters;
        for (const auto &key : keys)
            parameters.append({key.key, key.value});
        const TFDm dm(&bar);
        const auto content = TFUc::viewDataRequest(40, parameters, conditions, {});
        QByteArray reply;
        dm.startRequest(content, [&reply](bool, const QByteArray &data) { reply = data + ' '; });
        if (!QTest::qWaitFor([&reply] { return !reply.isEmpty(); }, 20000))
            return "no reply";
        QStringList numbers;
        const QRegularExpression symbol("\"SYMBOL\":\"S(\\d\\d)\"");
        for (auto hits = symbol.globalMatch(QString::fromUtf8(reply)); hits.hasNext();)
            numbers << hits.next().captured(1);
        return numbers.isEmpty() ? QString::fromUtf8(content.body + " -> " + reply) : numbers.join(' ');
    }

    ServiceFixture m_fixture;
    QProcess m_service;
};

SUBJECT_TEST_MAIN(TestFilterService)
#include "tst_filterservice.moc"
