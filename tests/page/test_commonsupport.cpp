#include "subjecttest.h"

#include "tftoolsfunc.h"

/// Value conversion.
class CommonSupportTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void textBecomesTheTypedValue_data();
    void textBecomesTheTypedValue();
    void otherVariantsPassOrConvertTheirText();
};

void CommonSupportTest::textBecomesTheTypedValue_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("expected");

    const auto integers = [](std::initializer_list<qint64> values) {
        QVariantList list;
        for (const qint64 value : values)
            list.append(QVariant::fromValue(value));
        return QVariant(list);
    };
    testRow("date in brackets", "2020-01-31", "DATETIME", QVariant("[2020-01-31]"));
    testRow("no date", "", "datetime", QVariant("[]"));
    testRow("whole number", "9007199254740993", "Decimal", QVariant(9007199254740993LL));
    testRow("fraction", "1.5", "decimal", QVariant(0LL));
    testRow("empty number", "", "decimal", QVariant(0LL));
    testRow("hexadecimal", "0x10", "decimal", QVariant(0LL));
    testRow("text", " 1.5 ", "String", QVariant(" 1.5 "));
    testRow("list by commas", "3,1,2", "intList", integers({3, 1, 2}));
    testRow("gap in a list", "3,,2", "intlist", integers({3, 0, 2}));
    testRow("list by semicolons", "3;x;", "intlist", integers({3, 0, 0}));
    testRow("comma wins over semicolon", "1,2;3", "intlist", integers({1, 0}));
    testRow("list of one", "-7", "intlist", integers({-7}));
    testRow("empty list", "", "intlist", integers({0}));
    testRow("list of texts", "a,b", "stringlist", QVariant("a,b"));
    testRow("unknown type", "12", "bool", QVariant("12"));
}

void CommonSupportTest::textBecomesTheTypedValue()
{
    QFETCH(QString, source);
    QFETCH(QString, type);
    QFETCH(QVariant, expected);

    const QVariant value = TFToolsFunc::valueTrans(source, type);

    QCOMPARE(value, expected);
    QCOMPARE(int(value.type()), int(expected.type()));
    for (const QVariant &element : value.type() == QVariant::List ? value.toList() : QVariantList())
        QCOMPARE(element.type(), QVariant::LongLong);
}

void CommonSupportTest::otherVariantsPassOrConvertTheirText()
{
    const QVariant list = QVariantList{1, "x"};
    QCOMPARE(TFToolsFunc::valueTrans(list, "IntList"), list);
    QCOMPARE(TFToolsFunc::valueTrans(list, "stringlist"), list);
    QCOMPARE(TFToolsFunc::valueTrans(QVariant(42), "decimal"), QVariant(42LL));
    QCOMPARE(TFToolsFunc::valueTrans(QVariant(QDate(2020, 1, 31)), "datetime"), QVariant("[2020-01-31]"));

    TFToolsFunc::valueTrans(QString("12"), "bool");
    QCOMPARE(debugLines().last(), QString("value type : bool source : 12"));
}

SUBJECT_TEST_MAIN(CommonSupportTest)
#include "test_commonsupport.moc"
