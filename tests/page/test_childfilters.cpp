#include "subjecttest.h"

#include "filterwidget/tffilterfactory.h"
#include "filterwidget/tffilteroperators.h"
#include "mulittable/tflinktemplate.h"
#include "tfchildfilters.h"

#include <QJsonObject>

using FilterParam::Cntrl;
using TFTableModelData::FilterData;

/// The way from a row of the main table to the filters of a child view and to the address behind a link.
class ChildFiltersTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void linkTextNamesTheSourceOfAField_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("links");
        testRow("qualified", "T.CODE=数据源.SECU", "SECU<-CODE!");
        testRow("several", "CODE=X.S;;DAY=D", "S<-CODE D<-DAY");
        testRow("a field with a dot stays whole", "A.B=X.F", "F<-A.B");
        testRow("no such field is cut", "A.C=X.F", "F<-C");
        testRow("three sides", "A=B=C", "");
        testRow("nothing behind the dot", "CODE=X.", "");
    }

    void linkTextNamesTheSourceOfAField()
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

    void fieldsTakeRowBarOrDefault_data()
    {
        QTest::addColumn<QStringList>("field"); // name, value type, operator, category, class
        QTest::addColumn<QString>("result");
        const auto add = [](const char *name, const QStringList &field, const QString &result) {
            testRow(name, field, result);
        };
        add("linked, as a filter", {"SECU", "", "=", "", "X"}, "(SECU == :SECU)600000");
        add("operator", {"SECU", "String", "LIKE", "2", "X"}, "(SECU like :SECU)600000");
        add("linked, as a parameter", {"SECU", "", "=", "1", "X"}, "SECU=600000");
        add("a label never is a parameter", {"SECU", "", "=", "1", "LabelControl"}, "(SECU == :SECU)600000");
        add("no link takes the default", {"OTHER", "", "<>", "", "X"}, "(OTHER != :OTHER)=2020-01-02");
        add("null in the row takes the bar", {"E", "", "=", "", "X"}, "(E == :E)bar");
        add("milliseconds as a date parameter", {"D", "DateTime", "=", "1", "X"}, "D=[2020-01-01]");
        add("text as a date parameter", {"OTHER", "DateTime", "=", "1", "X"}, "OTHER=2020-01-02");
        add("type of the cell where none is given", {"D", "", "=", "1", "X"}, "D=[2020-01-01]");
        add("without a field", {"", "", "=", "", "X"}, "");
    }

    void fieldsTakeRowBarOrDefault()
    {
        QFETCH(QStringList, field);
        FilterData data;
        data.FieldName = field.at(0);
        data.ValueType = field.at(1);
        data.Operator = field.at(2);
        data.ParameterCategory = field.at(3);
        data.ClassName = field.at(4);
        data.DefualtValue = "=2020-01-02";
        Cntrl bar;
        bar.key = "EMPTY";
        bar.value = "bar";

        TFChildFilters filters({bar}, row(), "CODE=X.SECU;EMPTY=X.E;DAY=X.D");
        filters.build({data});

        QTEST(asText(filters), "result");
    }

    void intervalNamesGrowFromBoundToBound()
    {
        FilterData data;
        data.FieldName = "F";
        data.Operator = "Between";
        Cntrl interval;
        interval.key = "A,B";
        interval.multiField = true;
        interval.value = "1,2,3";
        Cntrl single = interval;
        single.multiField = false;
        Cntrl parameter = interval;
        parameter.dataSourceFilter = true;
        parameter.value = "8";

        TFChildFilters filters({single, parameter, interval}, row(), QString());
        filters.build({data});

        QCOMPARE(asText(filters), QString("F=8 (F <= :F_start)1 (F_start <= :F_start_start)2 "
                                          "(F_start_start >= :F_start_start_end)3"));
    }

    void orderClauseBecomesDirections()
    {
        const FilterParam::DataSourceFilter order = TFFilterFactory::orderFilter("A desc,,B ASC,C,D x y");

        QCOMPARE(order.key, QString("order"));
        QCOMPARE(order.value.toJsonObject(), (QJsonObject{{"A", -1}, {"B", 1}}));
        QVERIFY(TFFilterFactory::orderFilter(QString()).key.isEmpty());
    }

    void operatorsMapToTheServicesWords()
    {
        QStringList words;
        for (const char *op : {">=", "<", "=", "<>", "IN", "NotIn", "and", "or", "in", "between"})
            words.append(TFFilterOperators::serviceWord(op));
        QCOMPARE(words.join(' '), QString(">= < == != in nin && || == =="));
    }

    void placeholdersInAQueryAreFilled_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("filled");
        testRow("twice and one more", "view://p?a=${CODE}&b=${CODE}${A.B}", "view://p?a=600000&b=6000007");
        testRow("no such field", "view://p?a=${GONE}&b=1", "view://p?a=&b=1");
        testRow("without a query", "http://h/${CODE}", "http://h/${CODE}");
        testRow("signs of a query in a value", "view://p?n=${NAME}&b=1", "view://p?n=A%26B 5%25&b=1");
    }

    void placeholdersInAQueryAreFilled()
    {
        QFETCH(QString, link);
        QTEST(TFLinkTemplate::fill(link, row()), "filled");
    }

private:
    static RowData row()
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

    static QString asText(const TFChildFilters &filters)
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
};

SUBJECT_TEST_MAIN(ChildFiltersTest)
#include "test_childfilters.moc"
