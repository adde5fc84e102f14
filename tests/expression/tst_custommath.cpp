#include "subjecttest.h"

#include "expression/tfcustommath.h"
#include "records/tfclock.h"

namespace {
QString serviceDate(const QString &date, const QString &zone = "+0000")
{
    const qint64 noon =
        QDateTime(QDate::fromString(date, Qt::ISODate), QTime(12, 0), Qt::UTC).toMSecsSinceEpoch();
    return QString("/Date(%1%2)").arg(noon).arg(zone);
}

QVariant call(const QString &name, const QList<QVariant> &args = {})
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
    void cleanup()
    {
        TFClock::setNow({});
        endMessages();
    }

    void reportDatesMoveAtTheirBoundaryDays_data();
    void reportDatesMoveAtTheirBoundaryDays();
    void movedDaysFollowTheCalendar_data();
    void movedDaysFollowTheCalendar();
    void listsRunBetweenTwoDates_data();
    void listsRunBetweenTwoDates();
    void zoneOffsetIsReadInWholeHours_data();
    void zoneOffsetIsReadInWholeHours();
    void yearOfATextIsItsFirstPart_data();
    void yearOfATextIsItsFirstPart();
    void namesMatchWithoutCaseAndBlanks();
};

void TestCustomMath::reportDatesMoveAtTheirBoundaryDays_data()
{
    QTest::addColumn<QString>("today");
    QTest::addColumn<QString>("annual");
    QTest::addColumn<QString>("quarter");
    QTest::newRow("new year") << "2026-01-01"
                              << "2024-12-31"
                              << "2025-12-31";
    QTest::newRow("end of March") << "2026-03-31"
                                  << "2024-12-31"
                                  << "2025-12-31";
    QTest::newRow("1 April") << "2026-04-01"
                             << "2024-12-31"
                             << "2026-03-31";
    QTest::newRow("30 April") << "2026-04-30"
                              << "2024-12-31"
                              << "2026-03-31";
    QTest::newRow("1 May") << "2026-05-01"
                           << "2025-12-31"
                           << "2026-03-31";
    QTest::newRow("30 June") << "2026-06-30"
                             << "2025-12-31"
                             << "2026-03-31";
    QTest::newRow("1 July") << "2026-07-01"
                            << "2025-12-31"
                            << "2026-06-30";
    QTest::newRow("1 October") << "2026-10-01"
                               << "2025-12-31"
                               << "2026-09-30";
    QTest::newRow("31 December") << "2026-12-31"
                                 << "2025-12-31"
                                 << "2026-09-30";
}

void TestCustomMath::reportDatesMoveAtTheirBoundaryDays()
{
    QFETCH(QString, today);
    QFETCH(QString, annual);
    QFETCH(QString, quarter);
    setToday(today);
    QCOMPARE(call("getlastedyearreport", {"ignored"}), QVariant(annual));
    const QVariant end = call("fndgetlatestphaseyearreport");
    QCOMPARE(int(end.type()), int(QVariant::DateTime));
    QCOMPARE(end.toDateTime(), QDate::fromString(quarter, Qt::ISODate).startOfDay());
    QCOMPARE(call("fndgetlatestquarterlyreport", {1}), end);
}

void TestCustomMath::movedDaysFollowTheCalendar_data()
{
    QTest::addColumn<QString>("today");
    QTest::addColumn<QString>("function");
    QTest::addColumn<QList<QVariant>>("args");
    QTest::addColumn<QString>("result");
    const auto args = [](const QVariant &value) { return QList<QVariant>{value}; };
    QTest::newRow("a month on from 31 January") << "2026-01-31"
                                                << "addmonths" << args(1) << "2026-02-28";
    QTest::newRow("in a leap year") << "2024-01-31"
                                    << "addmonths" << args("1") << "2024-02-29";
    QTest::newRow("a year on from 29 February") << "2024-02-29"
                                                << "addyears" << args(1) << "2025-02-28";
    QTest::newRow("over the year's end") << "2026-12-31"
                                         << "adddays" << args("1") << "2027-01-01";
    QTest::newRow("back over 29 February") << "2024-03-01"
                                           << "adddays" << args(-1) << "2024-02-29";
    QTest::newRow("no number") << "2026-01-01"
                               << "adddays" << args("x") << "";
    QTest::newRow("no argument") << "2026-01-01"
                                 << "adddays" << QList<QVariant>() << "";
    QTest::newRow("two arguments") << "2026-01-01"
                                   << "adddays" << QList<QVariant>{1, 2} << "";
    QTest::newRow("today") << "2026-01-01"
                           << "today" << QList<QVariant>() << "2026-01-01";
    QTest::newRow("today takes no argument") << "2026-01-01"
                                             << "today" << args("") << "";
}

void TestCustomMath::movedDaysFollowTheCalendar()
{
    QFETCH(QString, today);
    QFETCH(QString, function);
    QFETCH(QList<QVariant>, args);
    setToday(today);
    QTEST(call(function, args).toString(), "result");
}

void TestCustomMath::listsRunBetweenTwoDates_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<QList<QVariant>>("args");
    QTest::addColumn<QString>("result");
    const auto between = [](const QString &from, const QString &to) {
        return QList<QVariant>{serviceDate(from), serviceDate(to)};
    };
    const QString years = "getYearsBetrweemDate";
    const QString days = "getDatesBetrweemDate";
    QTest::newRow("years") << years << between("2019-12-31", "2021-01-01") << "2019,2020,2021";
    QTest::newRow("years backward") << years << between("2021-01-01", "2019-06-01") << "2021,2020,2019";
    QTest::newRow("one year") << years << between("2020-01-01", "2020-12-31") << "2020";
    QTest::newRow("days count both ends")
        << days << between("2024-02-28", "2024-03-01") << "2024-02-28,2024-02-29,2024-03-01";
    QTest::newRow("days backward") << days << between("2024-03-01", "2024-02-28") << "";
    QTest::newRow("one date too few") << days << QList<QVariant>{serviceDate("2024-03-01")} << "";
    QTest::newRow("an unreadable date is dropped")
        << years
        << QList<QVariant>{"date'2019-01-01'", serviceDate("2020-01-01"), "", serviceDate("2021-01-01")}
        << "2020,2021";
    QTest::newRow("two years") << "ofbetweenyear" << between("2019-01-01", "2022-01-01") << "2019,2022";
    QTest::newRow("this year twice") << "ofbetweenyear"
                                     << QList<QVariant>{"date'2019-01-01'", serviceDate("2020-01-01")}
                                     << "2026,2026";
    QTest::newRow("a list that never ends")
        << days << QList<QVariant>{"(0+0000)", "(9000000000000000000+0000)"} << "";
}

void TestCustomMath::listsRunBetweenTwoDates()
{
    QFETCH(QString, function);
    QFETCH(QList<QVariant>, args);
    setToday("2026-07-01");
    QTEST(call(function, args).toString(), "result");
}

void TestCustomMath::zoneOffsetIsReadInWholeHours_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("days");
    // 2020-07-31 16:00 UTC
    QTest::newRow("east: the next day") << "/Date(1596211200000+0800)/"
                                        << "2020-08-01";
    QTest::newRow("half an hour does not count") << "/Date(1596211200000+0759)"
                                                 << "2020-07-31";
    QTest::newRow("west") << "/Date(1596153600000-0500)"
                          << "2020-07-30";
    QTest::newRow("without a zone five digits are lost") << "/Date(1596211200000)"
                                                         << "1970-01-01";
    QTest::newRow("no number") << "/Date(today+0800)"
                               << "";
    QTest::newRow("too short") << "(1)"
                               << "";
    QTest::newRow("nothing between the parentheses") << "()"
                                                     << "";
    QTest::newRow("parentheses the wrong way round") << ")1596211200000+0800("
                                                     << "";
}

void TestCustomMath::zoneOffsetIsReadInWholeHours()
{
    QFETCH(QString, date);
    QTEST(call("getdatesbetrweemdate", {date, date}).toString(), "days");
}

void TestCustomMath::yearOfATextIsItsFirstPart_data()
{
    QTest::addColumn<QList<QVariant>>("args");
    QTest::addColumn<double>("year");
    QTest::newRow("none") << QList<QVariant>() << 2026.0;
    QTest::newRow("date") << QList<QVariant>{"=date'2019-3-31'"} << 2019.0;
    QTest::newRow("no date") << QList<QVariant>{"2019"} << 2026.0;
    QTest::newRow("more than an integer") << QList<QVariant>{"99999999999-1-1"} << 2026.0;
    QTest::newRow("two texts") << QList<QVariant>{"2019-3-31", "2020-3-31"} << 2026.0;
}

void TestCustomMath::yearOfATextIsItsFirstPart()
{
    QFETCH(QList<QVariant>, args);
    QFETCH(double, year);
    setToday("2026-12-31");
    QCOMPARE(call("ofyear", args), QVariant(year));
}

void TestCustomMath::namesMatchWithoutCaseAndBlanks()
{
    setToday("2026-07-01");
    QCOMPARE(call(" To Decimal ", {"2.5"}), QVariant(2.5));
    QCOMPARE(call("toDecimal", {"x"}), QVariant(0.0));
    QCOMPARE(call("todecimal", {1, 2}), QVariant(0.0));

    QVariant untouched = 7;
    QVERIFY(!TFCustomMath::instance()->callFunction("nosuch", {}, untouched));
    QCOMPARE(untouched, QVariant(7));
}

SUBJECT_TEST_MAIN(TestCustomMath)
#include "tst_custommath.moc"
