#include "subjecttest.h"

#include "expression/tfcustommath.h"
#include "records/tfclock.h"

namespace {
QString serviceDate(const QString &date)
{
    const QDateTime noon(QDate::fromString(date, Qt::ISODate), QTime(12, 0), Qt::UTC);
    return QString("/Date(%1+0000)").arg(noon.toMSecsSinceEpoch());
}

QVariant call(const QString &name, const QVariantList &args = {})
{
    QVariant result;
    return TFCustomMath::instance()->callFunction(name, args, result) ? result : QVariant("unknown");
}

void setToday(const QString &date)
{
    const QDate day = QDate::fromString(date, Qt::ISODate);
    TFClock::setNow([day] { return QDateTime(day, QTime(23, 59, 59)); });
}
} // namespace

class TestCustomMath : public SubjectTest
{
    Q_OBJECT

private slots:
    void reportDatesMoveAtTheirBoundaryDays_data()
    {
        QTest::addColumn<QString>("today");
        QTest::addColumn<QString>("annual");
        QTest::addColumn<QString>("quarter");
        testRow("end of March", "2026-03-31", "2024-12-31", "2025-12-31");
        testRow("30 April", "2026-04-30", "2024-12-31", "2026-03-31");
        testRow("1 May", "2026-05-01", "2025-12-31", "2026-03-31");
        testRow("30 June", "2026-06-30", "2025-12-31", "2026-03-31");
        testRow("1 July", "2026-07-01", "2025-12-31", "2026-06-30");
        testRow("1 October", "2026-10-01", "2025-12-31", "2026-09-30");
    }
    void reportDatesMoveAtTheirBoundaryDays()
    {
        QFETCH(QString, today);
        QFETCH(QString, annual);
        QFETCH(QString, quarter);
        setToday(today);
        QCOMPARE(call("getlastedyearreport", {"ignored"}), QVariant(annual));
        const QVariant end = QDate::fromString(quarter, Qt::ISODate).startOfDay();
        QCOMPARE(call("fndgetlatestphaseyearreport"), end);
        QCOMPARE(call("fndgetlatestquarterlyreport", {1}), end);
    }

    void functionAnswersInText_data()
    {
        QTest::addColumn<QString>("today");
        QTest::addColumn<QString>("function");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<QString>("result");
        using List = QVariantList;
        const auto between = [](const char *from, const char *to) {
            return List{serviceDate(from), serviceDate(to)};
        };
        const auto ofOneDay = [](const QString &date) { return List{date, date}; };
        const char *const day = "2026-07-01";
        const char *const years = "getYearsBetrweemDate";
        const char *const days = "getDatesBetrweemDate";

        testRow("a month on from 31 January", "2026-01-31", "addmonths", List{1}, "2026-02-28");
        testRow("a year on from 29 February", "2024-02-29", "addyears", List{1}, "2025-02-28");
        testRow("over the year's end", "2026-12-31", "adddays", List{"1"}, "2027-01-01");
        testRow("back over 29 February", "2024-03-01", "adddays", List{-1}, "2024-02-29");
        testRow("no number", day, "adddays", List{"x"}, "");
        testRow("no argument", day, "adddays", List{}, "");
        testRow("today", day, "today", List{}, day);
        testRow("today takes no argument", day, "today", List{""}, "");

        testRow("years", day, years, between("2019-12-31", "2021-01-01"), "2019,2020,2021");
        testRow("years backward", day, years, between("2021-01-01", "2019-06-01"), "2021,2020,2019");
        testRow("one year", day, years, between("2020-01-01", "2020-12-31"), "2020");
        testRow("days count both ends", day, days, between("2024-02-28", "2024-03-01"),
                "2024-02-28,2024-02-29,2024-03-01");
        testRow("days backward", day, days, between("2024-03-01", "2024-02-28"), "");
        testRow("one date too few", day, days, List{serviceDate("2024-03-01")}, "");
        testRow("an unreadable date is dropped", day, years,
                List{"date'2019-01-01'", serviceDate("2020-01-01"), "", serviceDate("2021-01-01")},
                "2020,2021");
        testRow("a list that never ends", day, days, List{"(0+0000)", "(9000000000000000000+0000)"}, "");
        testRow("two years", day, "ofbetweenyear", between("2019-01-01", "2022-01-01"), "2019,2022");
        testRow("this year twice", day, "ofbetweenyear", List{"date'2019-01-01'"}, "2026,2026");

        // 2020-07-31 16:00 UTC
        testRow("zone in the east: the next day", day, days, ofOneDay("/Date(1596211200000+0800)/"),
                "2020-08-01");
        testRow("half an hour does not count", day, days, ofOneDay("/Date(1596211200000+0759)"),
                "2020-07-31");
        testRow("zone in the west", day, days, ofOneDay("/Date(1596153600000-0500)"), "2020-07-30");
        testRow("without a zone five digits are lost", day, days, ofOneDay("/Date(1596211200000)"),
                "1970-01-01");
        testRow("no number of milliseconds", day, days, ofOneDay("/Date(today+0800)"), "");
        testRow("too short for a zone", day, days, ofOneDay("(1)"), "");
        testRow("parentheses the wrong way round", day, days, ofOneDay(")1596211200000+0800("), "");

        testRow("year of none", day, "ofyear", List{}, "2026");
        testRow("year of a date", day, "ofyear", List{"=date'2019-3-31'"}, "2019");
        testRow("year of no date", day, "ofyear", List{"2019"}, "2026");
        testRow("year beyond an integer", day, "ofyear", List{"99999999999-1-1"}, "2026");
        testRow("year of two texts", day, "ofyear", List{"2019-3-31", "2020-3-31"}, "2026");
    }
    void functionAnswersInText()
    {
        QFETCH(QString, today);
        QFETCH(QString, function);
        QFETCH(QVariantList, args);
        setToday(today);
        QTEST(call(function, args).toString(), "result");
    }

    void namesMatchWithoutCaseAndBlanks()
    {
        QCOMPARE(call(" To Decimal ", {"2.5"}), QVariant(2.5));
        QCOMPARE(call("toDecimal", {"x"}), QVariant(0.0));
        QCOMPARE(call("todecimal", {1, 2}), QVariant(0.0));

        QVariant untouched = 7;
        QVERIFY(!TFCustomMath::instance()->callFunction("nosuch", {}, untouched));
        QCOMPARE(untouched, QVariant(7));
    }
};

SUBJECT_TEST_MAIN(TestCustomMath)
#include "tst_custommath.moc"
