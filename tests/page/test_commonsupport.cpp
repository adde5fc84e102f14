#include "subjecttest.h"

#include "tfqsscommon.h"
#include "tftoolsfunc.h"

/// Value conversion and the skin values.
class CommonSupportTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void textBecomesTheTypedValue_data();
    void textBecomesTheTypedValue();
    void unknownTypeIsLogged();
    void listPassesUnchanged_data();
    void listPassesUnchanged();
    void otherVariantsConvertTheirText();
    void skinColoursAreSharedAndKeptApart();
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
    QTest::newRow("date in brackets") << "2020-01-31"
                                      << "DATETIME" << QVariant("[2020-01-31]");
    QTest::newRow("no date") << ""
                             << "datetime" << QVariant("[]");
    QTest::newRow("whole number") << "9007199254740993"
                                  << "Decimal" << QVariant(9007199254740993LL);
    QTest::newRow("fraction") << "1.5"
                              << "decimal" << QVariant(0LL);
    QTest::newRow("empty number") << ""
                                  << "decimal" << QVariant(0LL);
    QTest::newRow("hexadecimal") << "0x10"
                                 << "decimal" << QVariant(0LL);
    QTest::newRow("text") << " 1.5 "
                          << "String" << QVariant(" 1.5 ");
    QTest::newRow("list by commas") << "3,1,2"
                                    << "intList" << integers({3, 1, 2});
    QTest::newRow("gap in a list") << "3,,2"
                                   << "intlist" << integers({3, 0, 2});
    QTest::newRow("list by semicolons") << "3;x;"
                                        << "intlist" << integers({3, 0, 0});
    QTest::newRow("comma wins over semicolon") << "1,2;3"
                                               << "intlist" << integers({1, 0});
    QTest::newRow("list of one") << "-7"
                                 << "intlist" << integers({-7});
    QTest::newRow("empty list") << ""
                                << "intlist" << integers({0});
    QTest::newRow("list of texts") << "a,b"
                                   << "stringlist" << QVariant("a,b");
    QTest::newRow("unknown type") << "12"
                                  << "bool" << QVariant("12");
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

void CommonSupportTest::unknownTypeIsLogged()
{
    TFToolsFunc::valueTrans(QStringLiteral("12"), QStringLiteral("bool"));

    QCOMPARE(debugLines(), QStringList{"value type : bool source : 12"});
}

void CommonSupportTest::listPassesUnchanged_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("integers") << "IntList";
    QTest::newRow("texts") << "stringlist";
}

void CommonSupportTest::listPassesUnchanged()
{
    QFETCH(QString, type);
    const QVariant list = QVariantList{1, "x"};

    QCOMPARE(TFToolsFunc::valueTrans(list, type), list);
}

void CommonSupportTest::otherVariantsConvertTheirText()
{
    QCOMPARE(TFToolsFunc::valueTrans(QVariant(42), QStringLiteral("decimal")), QVariant(42LL));
    QCOMPARE(TFToolsFunc::valueTrans(QVariant(QDate(2020, 1, 31)), QStringLiteral("datetime")),
             QVariant("[2020-01-31]"));
}

void CommonSupportTest::skinColoursAreSharedAndKeptApart()
{
    TFQssCommon::instance()->setHeaderBorderColor(Qt::red);
    TFQssCommon::instance()->setHeaderSplitColor(Qt::green);
    TFQssCommon::instance()->setHighlightColor(Qt::blue);

    QCOMPARE(TFQssCommon::instance()->headerBorderColor(), QColor(Qt::red));
    QCOMPARE(TFQssCommon::instance()->headerSplitColor(), QColor(Qt::green));
    QCOMPARE(TFQssCommon::instance()->highlightColor(), QColor(Qt::blue));
}

SUBJECT_TEST_MAIN(CommonSupportTest)
#include "test_commonsupport.moc"
