#include "subjecttest.h"

#include "tftoolsfunc.h"

/// Value conversion.
class CommonSupportTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void textBecomesTheTypedValue_data()
    {
        QTest::addColumn<QVariant>("source");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QVariant>("expected");

        const auto integers = [](std::initializer_list<qint64> values) {
            QVariantList list;
            for (const qint64 value : values)
                list.append(QVariant::fromValue(value));
            return QVariant(list);
        };
        const auto add = [](const char *name, const QVariant &source, const char *type,
                            const QVariant &expected) { testRow(name, source, QString(type), expected); };
        add("date in brackets", "2020-01-31", "DATETIME", "[2020-01-31]");
        add("a date", QDate(2020, 1, 31), "datetime", "[2020-01-31]");
        add("no date", "", "datetime", "[]");
        add("whole number", "9007199254740993", "Decimal", 9007199254740993LL);
        add("a number", 42, "decimal", 42LL);
        add("fraction", "1.5", "decimal", 0LL);
        add("hexadecimal", "0x10", "decimal", 0LL);
        add("text", " 1.5 ", "String", " 1.5 ");
        add("list by commas", "3,1,2", "intList", integers({3, 1, 2}));
        add("list by semicolons", "3;x;", "intlist", integers({3, 0, 0}));
        add("comma wins over semicolon", "1,2;3", "intlist", integers({1, 0}));
        add("list of one", "-7", "intlist", integers({-7}));
        add("empty list", "", "intlist", integers({0}));
        add("list of texts", "a,b", "stringlist", "a,b");
        add("a list", QVariantList{1LL, 2LL}, "IntList", integers({1, 2}));
        add("unknown type", "12", "bool", "12");
    }

    void textBecomesTheTypedValue()
    {
        QFETCH(QVariant, source);
        QFETCH(QString, type);
        QFETCH(QVariant, expected);

        const bool isText = source.type() == QVariant::String;
        const QVariant value =
            isText ? TFToolsFunc::valueTrans(source.toString(), type) : TFToolsFunc::valueTrans(source, type);

        QCOMPARE(value, expected);
        QCOMPARE(int(value.type()), int(expected.type()));
        for (const QVariant &element : value.type() == QVariant::List ? value.toList() : QVariantList())
            QCOMPARE(element.type(), QVariant::LongLong);
    }
};

SUBJECT_TEST_MAIN(CommonSupportTest)
#include "test_commonsupport.moc"
