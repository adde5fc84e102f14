#include "filtersql.h"
#include "servicefixture.h"
#include "subjecttest.h"

using namespace service;

namespace {

Columns columns()
{
    return Columns({"SYMBOL", "PRICE", "DAY", "2019__A\"B", "ANY", "in"},
                   {{"SYMBOL", ValueKind::Text}, {"PRICE", ValueKind::Number}, {"DAY", ValueKind::Date}});
}

/// The condition as text: SQL, then its values with their types.
QString asText(const BoundSql &sql)
{
    QStringList values;
    for (const QVariant &value : sql.values)
        values << QString("%1 %2").arg(QString::fromLatin1(value.typeName()), value.toString());
    return sql.text + " <- " + values.join(", ");
}

QString answer(const QString &filter, const char *parameters)
{
    const Result<BoundSql> sql = filterCondition(filter, object(parameters), columns());
    return sql.ok() ? asText(sql.value()) : QString("%1 ").arg(sql.refusal().status) + sql.refusal().message;
}

} // namespace

class TestFilterSql : public SubjectTest
{
    Q_OBJECT

private slots:
    void conditionsBecomeSqlWithBoundValues_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QByteArray>("parameters");
        QTest::addColumn<QString>("sql");

        const auto row = [](const char *name, const char *filter, const char *parameters, const char *sql) {
            testRow(name, QString::fromUtf8(filter), QByteArray(parameters), QString::fromUtf8(sql));
        };
        row("empty", "  ", "{}", " <- ");
        row("as the client joins them", "(PRICE >= :P_0) && (PRICE <= :P_1)", "{'P_0': 1, 'P_1': 2.5}",
            "\"PRICE\" >= ? AND \"PRICE\" <= ? <- qlonglong 1, double 2.5");
        row("two conditions share a value", "(PRICE > :P) && (PRICE != :P)", "{'P': 3}",
            "\"PRICE\" > ? AND \"PRICE\" <> ? <- qlonglong 3, qlonglong 3");
        row("parentheses and blanks at will", "((PRICE<:P)&&(((SYMBOL == 'a'))))", "{'P': 1}",
            "\"PRICE\" < ? AND \"SYMBOL\" = ? <- qlonglong 1, QString a");
        row("numbers as text for a number", "PRICE in :P", "{'P': ['1', 2]}",
            "\"PRICE\" IN (?,?) <- qlonglong 1, qlonglong 2");
        row("number for a text", "SYMBOL == :S", "{'S': 12}", "\"SYMBOL\" = ? <- QString 12");
        row("nin with one value", "(SYMBOL nin :S)", "{'S': 'a'}", "\"SYMBOL\" NOT IN (?) <- QString a");
        row("empty list holds nothing", "(SYMBOL in :S)", "{'S': []}", "1 = 0 <- ");
        row("like looks anywhere", "(SYMBOL like :S)", "{'S': 'a_b'}",
            "\"SYMBOL\" LIKE ? ESCAPE '\\' <- QString %a\\_b%");
        row("like with a pattern", "(SYMBOL like :S)", "{'S': 'a%'}",
            "\"SYMBOL\" LIKE ? ESCAPE '\\' <- QString a%");
        row("both hold", "(PRICE && :P) && (ANY == :A)", "{'P': 1, 'A': 'x'}",
            "(\"PRICE\" <> 0 AND ? <> 0) AND \"ANY\" = ? <- qlonglong 1, QString x");
        row("null", "(SYMBOL == :S) && (PRICE != :S)", "{'S': null}",
            "\"SYMBOL\" IS NULL AND \"PRICE\" IS NOT NULL <- ");
        row("day", "(DAY == [2020-01-31])", "{}",
            "\"DAY\" BETWEEN ? AND ? <- QString 2020-01-31, QString 2020-01-31 00:00:00");
        row("bracketed end of a day", "(DAY <= :D)", "{'D': '[2020-01-31 23:59:59]'}",
            "\"DAY\" <= ? <- QString 2020-01-31 23:59:59");
        row("service date keeps the client's day", "(DAY >= :D)", "{'D': '[/Date(1596124800000+0900)]'}",
            "\"DAY\" >= ? <- QString 2020-07-31 01:00:00");
        row("service date with a closing slash", "(DAY >= :D)", "{'D': '/Date(1596124800000-0330)/'}",
            "\"DAY\" >= ? <- QString 2020-07-30 12:30:00");
        row("milliseconds of a row", "(DAY >= :D)", "{'D': 1596124800000}",
            "\"DAY\" >= ? <- QString 2020-07-31");
        row("month without zero", "(DAY >= :A) && (DAY <= :B)", "{'A': '?2019-1?', 'B': '?2020-2?'}",
            "\"DAY\" >= ? AND \"DAY\" <= ? <- QString 2019-01-01, QString 2020-02-29 23:59:59");
        row("field named like an operator", "(in in :A)", "{'A': [1]}", "\"in\" IN (?) <- qlonglong 1");
    }

    void conditionsBecomeSqlWithBoundValues()
    {
        QFETCH(QString, filter);
        QFETCH(QByteArray, parameters);
        QFETCH(QString, sql);

        // A lone "?" in the table stands for a quote within a text.
        QJsonObject values = object(parameters.constData());
        for (auto it = values.begin(); it != values.end(); ++it) {
            if (it.value().isString())
                it.value() = it.value().toString().replace('?', '\'');
        }
        const Result<BoundSql> result = filterCondition(filter, values, columns());
        QVERIFY2(result.ok(), result.ok() ? "" : qPrintable(result.refusal().message));
        QCOMPARE(asText(result.value()), sql);
    }

    void faultsNameTheirPlace_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QByteArray>("parameters");
        QTest::addColumn<QString>("start");

        const auto row = [](const char *filter, const char *parameters, const char *start) {
            testRow(filter, QString::fromUtf8(filter), QByteArray(parameters), QString::fromUtf8(start));
        };
        row("(PRICE = :P)", "{'P': 1}", "400 filter: position 8: unknown operator \"=\"; accepted are > >=");
        row("(PRICE LIKE :P)", "{'P': 1}", "400 filter: position 8: unknown operator \"LIKE\"");
        row("(PRICE > :P) || (PRICE < :P)", "{'P': 1}",
            "400 filter: position 14: expected \"&&\" or the end, found \"||\"");
        row("(NOPE > :P)", "{'P': 1}",
            "400 filter: position 2: no field \"NOPE\"; columns are SYMBOL, PRICE");
        row("(PRICE > :P)", "{}", "400 filter: position 10: no value for :P in filterParams");
        row("(PRICE > :)", "{}", "400 filter: position 10: a parameter's name is missing");
        row("(PRICE > :P", "{'P': 1}", "400 filter: position 12: expected \"&&\" or \")\", found the end");
        row("(PRICE > :P))", "{'P': 1}", "400 filter: position 13: expected \"&&\" or the end, found \")\"");
        row("() && (PRICE > 1)", "{}", "400 filter: position 2: expected a field, found \")\"");
        row("(SYMBOL == 'abc)", "{}", "400 filter: position 12: \"'\" is missing");
        row("PRICE > 1; DROP TABLE x", "{}", "400 filter: position 10: unexpected \";\"");
        row("PRICE > 1 OR 1 == 1", "{}", "400 filter: position 11: expected \"&&\" or the end, found \"OR\"");
        row("(PRICE > :P) &&", "{'P': 1}", "400 filter: position 16: expected a field, found the end");
        row("PRICE > :Q", "{'Q': 'abc'}", "400 filterParams.Q: \"abc\" is no number");
        row("PRICE > :L", "{'L': [1, 2]}", "400 filterParams.L: operator > takes one text or number");
        row("PRICE in :O", "{'O': [{}]}", "400 filterParams.O: a list holds texts and numbers only");
        row("DAY > :D", "{'D': '2020-13-01'}", "400 filterParams.D: \"2020-13-01\" is no date");
        row("DAY > [2020-02-30]", "{}", "400 filter: position 7: \"[2020-02-30]\" is no date");
        row("PRICE > :N", "{'N': null}", "400 filterParams.N: null goes with == and != only");
    }

    void faultsNameTheirPlace()
    {
        QFETCH(QString, filter);
        QFETCH(QByteArray, parameters);
        QFETCH(QString, start);

        const QString text = answer(filter, parameters.constData());

        QVERIFY2(text.startsWith(start), qPrintable(text));
    }

    void datesFindTheRowsOfTheirDay_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<int>("rows");

        // Days 1 to 12; the third, sixth, ninth and twelfth carry 15:30.
        testRow("from a plain day", "DAY >= [2020-01-05]", 8);
        testRow("after a plain day", "DAY > [2020-01-05]", 7);
        testRow("up to a plain day", "DAY <= [2020-01-05]", 5);
        testRow("before a plain day", "DAY < [2020-01-05]", 4);
        testRow("a plain day", "DAY == [2020-01-05]", 1);
        testRow("not a plain day", "DAY != [2020-01-05]", 11);
        testRow("midnight of a day with a time", "DAY == [2020-01-06]", 0);
        testRow("after midnight of a day with a time", "DAY > [2020-01-06]", 7);
        testRow("up to the end of a day", "DAY <= [2020-01-06 23:59:59]", 6);
        testRow("a day in a list", "DAY in [2020-01-05]", 1);
        testRow("a month", "DAY == [2020-01]", 12);
        testRow("after the month", "DAY > [2020-01]", 0);
    }

    void datesFindTheRowsOfTheirDay()
    {
        QFETCH(QString, filter);
        QFETCH(int, rows);
        const ServiceFixture fixture;
        Database database(fixture.databaseAddress());
        QString fault;
        QVERIFY2(database.open(&fault), qPrintable(fault));

        const Result<BoundSql> condition = filterCondition(filter, {}, columns());
        QVERIFY(condition.ok());
        BoundSql sql{"SELECT * FROM price WHERE ", {}};
        sql.append(condition.value());

        QCOMPARE(database.count(sql).value(), qint64(rows));
    }

    void longAndDeepTextsAreRefusedQuickly()
    {
        const QString deep = QString(5000, '(') + "PRICE > 1";
        QString many = "PRICE > 1";
        for (int i = 0; i < 300; ++i)
            many += " && PRICE > 1";

        QVERIFY(answer(deep, "{}").startsWith("400 filter: position 33: more than 32 parentheses deep"));
        QVERIFY(answer(many, "{}").contains("more than 256 conditions"));
        QVERIFY(answer(QString(200000, ' '), "{}").contains("longer than"));
    }

    void anyTextIsAnswered()
    {
        const QStringList words{"(",
                                ")",
                                "PRICE",
                                ">",
                                "in",
                                "&&",
                                ":P",
                                "'",
                                "[",
                                "-1",
                                "''",
                                "\u4e00",
                                "\\",
                                "--",
                                QString(QChar(0)),
                                QString(QChar(0xD800))};
        quint32 state = 12345;
        int understood = 0;
        for (int round = 0; round < 20000; ++round) {
            QString text;
            for (int i = 0; i < 8; ++i) {
                state = state * 1664525u + 1013904223u;
                text += words.at(static_cast<int>((state >> 16) % static_cast<quint32>(words.size()))) + ' ';
            }
            const FilterParse parse = parseFilter(text, Limits().filterDepth);
            QVERIFY(parse.fault.isEmpty() != (parse.position > 0));
            QVERIFY2(parse.fault.isEmpty() || parse.position <= text.size() + 1, qPrintable(text));
            understood += parse.fault.isEmpty() ? 1 : 0;
        }
        QVERIFY(understood > 0);
    }
};

SUBJECT_TEST_MAIN(TestFilterSql)
#include "test_filtersql.moc"
