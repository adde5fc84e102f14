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

QString answer(const QString &filter, const QString &parameters)
{
    const Result<BoundSql> sql = filterCondition(filter, object(parameters.toUtf8()), columns());
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
        QTest::addColumn<QString>("parameters");
        QTest::addColumn<QString>("sql");

        testRow("empty", "  ", "{}", " <- ");
        testRow("as the client joins them", "(PRICE >= :P_0) && (PRICE <= :P_1)", "{'P_0': 1, 'P_1': 2.5}",
                "\"PRICE\" >= ? AND \"PRICE\" <= ? <- qlonglong 1, double 2.5");
        testRow("two conditions share a value", "(PRICE > :P) && (PRICE != :P)", "{'P': 3}",
                "\"PRICE\" > ? AND \"PRICE\" <> ? <- qlonglong 3, qlonglong 3");
        testRow("parentheses and blanks at will", "((PRICE<:P)&&(((SYMBOL == 'a'))))", "{'P': 1}",
                "\"PRICE\" < ? AND \"SYMBOL\" = ? <- qlonglong 1, QString a");
        testRow("numbers as text for a number", "PRICE in :P", "{'P': ['1', 2]}",
                "\"PRICE\" IN (?,?) <- qlonglong 1, qlonglong 2");
        testRow("number for a text", "SYMBOL == :S", "{'S': 12}", "\"SYMBOL\" = ? <- QString 12");
        testRow("nin with one value", "(SYMBOL nin :S)", "{'S': 'a'}", "\"SYMBOL\" NOT IN (?) <- QString a");
        testRow("empty list holds nothing", "(SYMBOL in :S)", "{'S': []}", "1 = 0 <- ");
        testRow("like looks anywhere", "(SYMBOL like :S)", "{'S': 'a_b'}",
                "\"SYMBOL\" LIKE ? ESCAPE '\\' <- QString %a\\_b%");
        testRow("like with a pattern", "(SYMBOL like :S)", "{'S': 'a%'}",
                "\"SYMBOL\" LIKE ? ESCAPE '\\' <- QString a%");
        testRow("both hold", "(PRICE && :P) && (ANY == :A)", "{'P': 1, 'A': 'x'}",
                "(\"PRICE\" <> 0 AND ? <> 0) AND \"ANY\" = ? <- qlonglong 1, QString x");
        testRow("null", "(SYMBOL == :S) && (PRICE != :S)", "{'S': null}",
                "\"SYMBOL\" IS NULL AND \"PRICE\" IS NOT NULL <- ");
        testRow("day", "(DAY == [2020-01-31])", "{}",
                "\"DAY\" BETWEEN ? AND ? <- QString 2020-01-31, QString 2020-01-31 00:00:00");
        testRow("bracketed end of a day", "(DAY <= :D)", "{'D': '[2020-01-31 23:59:59]'}",
                "\"DAY\" <= ? <- QString 2020-01-31 23:59:59");
        testRow("service date keeps the client's day", "(DAY >= :D)", "{'D': '[/Date(1596124800000+0900)]'}",
                "\"DAY\" >= ? <- QString 2020-07-31 01:00:00");
        testRow("service date with a closing slash", "(DAY >= :D)", "{'D': '/Date(1596124800000-0330)/'}",
                "\"DAY\" >= ? <- QString 2020-07-30 12:30:00");
        testRow("milliseconds of a row", "(DAY >= :D)", "{'D': 1596124800000}",
                "\"DAY\" >= ? <- QString 2020-07-31");
        testRow("month without zero", "(DAY >= :A) && (DAY <= :B)",
                "{'A': '\\u00272019-1\\u0027', 'B': '\\u00272020-2\\u0027'}",
                "\"DAY\" >= ? AND \"DAY\" <= ? <- QString 2019-01-01, QString 2020-02-29 23:59:59");
        testRow("field named like an operator", "(in in :A)", "{'A': [1]}", "\"in\" IN (?) <- qlonglong 1");
    }

    void conditionsBecomeSqlWithBoundValues()
    {
        QFETCH(QString, filter);
        QFETCH(QString, parameters);
        QFETCH(QString, sql);

        QCOMPARE(answer(filter, parameters), sql);
    }

    void faultsNameTheirPlace_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("parameters");
        QTest::addColumn<QString>("start");
        const auto fault = [](const char *filter, const char *parameters, const char *start) {
            testRow(filter, QString(filter), QString(parameters), QString(start));
        };

        fault("(PRICE = :P)", "{'P': 1}",
              "400 filter: position 8: unknown operator \"=\"; accepted are > >=");
        fault("(PRICE LIKE :P)", "{'P': 1}", "400 filter: position 8: unknown operator \"LIKE\"");
        fault("(PRICE > :P) || (PRICE < :P)", "{'P': 1}",
              "400 filter: position 14: expected \"&&\" or the end, found \"||\"");
        fault("(NOPE > :P)", "{'P': 1}",
              "400 filter: position 2: no field \"NOPE\"; columns are SYMBOL, PRICE");
        fault("(PRICE > :P)", "{}", "400 filter: position 10: no value for :P in filterParams");
        fault("(PRICE > :)", "{}", "400 filter: position 10: a parameter's name is missing");
        fault("(PRICE > :P", "{'P': 1}", "400 filter: position 12: expected \"&&\" or \")\", found the end");
        fault("(PRICE > :P))", "{'P': 1}",
              "400 filter: position 13: expected \"&&\" or the end, found \")\"");
        fault("() && (PRICE > 1)", "{}", "400 filter: position 2: expected a field, found \")\"");
        fault("(SYMBOL == 'abc)", "{}", "400 filter: position 12: \"'\" is missing");
        fault("PRICE > 1; DROP TABLE x", "{}", "400 filter: position 10: unexpected \";\"");
        fault("PRICE > 1 OR 1 == 1", "{}",
              "400 filter: position 11: expected \"&&\" or the end, found \"OR\"");
        fault("(PRICE > :P) &&", "{'P': 1}", "400 filter: position 16: expected a field, found the end");
        fault("PRICE > :Q", "{'Q': 'abc'}", "400 filterParams.Q: \"abc\" is no number");
        fault("PRICE > :L", "{'L': [1, 2]}", "400 filterParams.L: operator > takes one text or number");
        fault("PRICE in :O", "{'O': [{}]}", "400 filterParams.O: a list holds texts and numbers only");
        fault("DAY > :D", "{'D': '2020-13-01'}", "400 filterParams.D: \"2020-13-01\" is no date");
        fault("DAY > [2020-02-30]", "{}", "400 filter: position 7: \"[2020-02-30]\" is no date");
        fault("PRICE > :N", "{'N': null}", "400 filterParams.N: null goes with == and != only");
    }

    void faultsNameTheirPlace()
    {
        QFETCH(QString, filter);
        QFETCH(QString, parameters);
        QFETCH(QString, start);

        const QString text = answer(filter, parameters);

        QVERIFY2(text.startsWith(start), qPrintable(text));
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
};

SUBJECT_TEST_MAIN(TestFilterSql)
#include "test_filtersql.moc"
