#include "subjecttest.h"

#include "filterwidget/tffilterfactory.h"
#include "filterwidget/tffilteroperators.h"
#include "mulittable/tflinktemplate.h"
#include "tfchildfilters.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

using FilterParam::Cntrl;
using TFTableModelData::FilterData;

/// The way from a row of the main table to the filters of a child view and to the address behind a link.
class ChildFiltersTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void linkTextNamesTheSourceOfAField_data();
    void linkTextNamesTheSourceOfAField();
    void fieldsTakeRowBarOrDefault_data();
    void fieldsTakeRowBarOrDefault();
    void intervalNamesGrowFromBoundToBound();
    void orderClauseBecomesDirections();
    void operatorsMapToTheServicesWords();
    void placeholdersInAQueryAreFilled_data();
    void placeholdersInAQueryAreFilled();

private:
    static RowData row();
    static QString asText(const TFChildFilters &filters);
};

RowData ChildFiltersTest::row()
{
    RowData cells;
    const auto add = [&cells](const char *name, const char *type, const QVariant &value) {
        TFTableModelData::tagCellValue cell;
        cell.fieldName = name;
        cell.valueType = type;
        cell.value = value;
        cells.append(cell);
    };
    add("CODE", "String", "600000");
    add("DAY", "DateTime", qint64(1577808000000));
    add("EMPTY", "String", QVariant(QVariant::String));
    add("A.B", "Decimal", 7);
    add("NAME", "String", QString("A&B 5%"));
    return cells;
}

QString ChildFiltersTest::asText(const TFChildFilters &filters)
{
    QStringList lines;
    for (const FilterParam::DataSourceFilter &parameter : filters.parameters())
        lines.append(QString("%1=%2").arg(parameter.key, parameter.value.toString()));
    for (const FilterParam::CustomFilter &filter : filters.filters())
        lines.append(
            QString("(%1 %2 :%3)%4")
                .arg(filter.fieldName, filter.op, filter.paramName, filter.values.value(0).toString()));
    return lines.join(' ');
}

void ChildFiltersTest::linkTextNamesTheSourceOfAField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("links");
    testRow("qualified", "T.CODE=数据源.SECU", "SECU<-CODE!");
    testRow("plain", "CODE=SECU", "SECU<-CODE");
    testRow("several", "CODE=X.S;;DAY=X.D", "S<-CODE D<-DAY");
    testRow("a field with a dot stays whole", "A.B=X.F", "F<-A.B");
    testRow("no such field is cut", "A.C=X.F", "F<-C");
    testRow("three sides", "A=B=C", "");
    testRow("nothing behind the dot", "CODE=X.", "");
    testRow("empty", "", "");
}

void ChildFiltersTest::linkTextNamesTheSourceOfAField()
{
    QFETCH(QString, text);
    QFETCH(QString, links);
    TFFilterFactory factory;

    factory.parse(text, row());

    QStringList found;
    for (const TFFilterFactory::Link &link : factory.links())
        found.append(link.targetField + "<-" + link.sourceField + (link.isDataSource ? "!" : ""));
    QCOMPARE(found.join(' '), links);
    QVERIFY(factory.target("NOTHING").isNull());
}

void ChildFiltersTest::fieldsTakeRowBarOrDefault_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("op");
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("result");
    testRow("linked, as a filter", "SECU", "", "=", "", "X", "(SECU == :SECU)600000");
    testRow("operator", "SECU", "String", "LIKE", "2", "X", "(SECU like :SECU)600000");
    testRow("linked, as a parameter", "SECU", "", "=", "1", "X", "SECU=600000");
    testRow("a label never is a parameter", "SECU", "", "=", "1", "LabelControl", "(SECU == :SECU)600000");
    testRow("no link takes the default", "OTHER", "", "<>", "", "X", "(OTHER != :OTHER)dft");
    testRow("null in the row takes the bar", "E", "", "=", "", "X", "(E == :E)bar");
    testRow("milliseconds as a date parameter", "D", "DateTime", "=", "1", "X", "D=[2020-01-01]");
    testRow("type of the cell where none is given", "D", "", "=", "1", "X", "D=[2020-01-01]");
    testRow("without a field", "", "", "=", "", "X", "");
}

void ChildFiltersTest::fieldsTakeRowBarOrDefault()
{
    QFETCH(QString, field);
    QFETCH(QString, type);
    QFETCH(QString, op);
    QFETCH(QString, category);
    QFETCH(QString, className);
    QFETCH(QString, result);
    FilterData data;
    data.FieldName = field;
    data.ValueType = type;
    data.Operator = op;
    data.ParameterCategory = category;
    data.ClassName = className;
    data.DefualtValue = "dft";
    Cntrl bar;
    bar.key = "EMPTY";
    bar.value = "bar";

    TFChildFilters filters({bar}, row(), "CODE=X.SECU;EMPTY=X.E;DAY=X.D");
    filters.build({data});

    QCOMPARE(asText(filters), result);
}

void ChildFiltersTest::intervalNamesGrowFromBoundToBound()
{
    FilterData data;
    data.FieldName = "F";
    data.Operator = "Between";
    Cntrl interval;
    interval.key = "A,B";
    interval.multiField = true;
    interval.value = "1,2,3";
    Cntrl single;
    single.key = "S";
    single.value = "9";

    TFChildFilters filters({single, interval}, row(), QString());
    filters.build({data});

    QCOMPARE(asText(filters), QString("(F <= :F_start)1 (F_start <= :F_start_start)2 "
                                      "(F_start_start >= :F_start_start_end)3"));
}

void ChildFiltersTest::orderClauseBecomesDirections()
{
    const FilterParam::DataSourceFilter order = TFFilterFactory::orderFilter("A desc,,B ASC,C,D x y");

    QCOMPARE(order.key, QString("order"));
    QCOMPARE(QJsonDocument(order.value.toJsonObject()).toJson(QJsonDocument::Compact),
             QByteArray(R"({"A":-1,"B":1})"));
    QVERIFY(TFFilterFactory::orderFilter(QString()).key.isEmpty());
}

void ChildFiltersTest::operatorsMapToTheServicesWords()
{
    QStringList words;
    for (const char *op : {">=", "<", "=", "<>", "IN", "NotIn", "and", "or", "in", "between"})
        words.append(TFFilterOperators::serviceWord(op));
    QCOMPARE(words.join(' '), QString(">= < == != in nin && || == =="));
}

void ChildFiltersTest::placeholdersInAQueryAreFilled_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("filled");
    testRow("one", "view://p?objvwid=26&code=${CODE}", "view://p?objvwid=26&code=600000");
    testRow("twice and one more", "view://p?a=${CODE}&b=${CODE}${A.B}", "view://p?a=600000&b=6000007");
    testRow("no such field", "view://p?a=${GONE}&b=1", "view://p?a=&b=1");
    testRow("without a query", "http://h/${CODE}", "http://h/$%7BCODE%7D");
    testRow("signs of a query in a value", "view://p?n=${NAME}&b=1", "view://p?n=A%26B 5%25&b=1");
}

void ChildFiltersTest::placeholdersInAQueryAreFilled()
{
    QFETCH(QString, link);
    QFETCH(QString, filled);
    QCOMPARE(TFLinkTemplate::fill(link, row()), filled);
}

SUBJECT_TEST_MAIN(ChildFiltersTest)
#include "test_childfilters.moc"
