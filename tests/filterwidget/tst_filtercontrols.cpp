#include "filterrows.h"
#include "filterwidget/tfbasefilterwidget.h"
#include "filterwidget/tfcacheconfig.h"
#include "filterwidget/tfcheckcombox.h"
#include "filterwidget/tfcombobox.h"
#include "filterwidget/tfdatetimeinterval.h"
#include "filterwidget/tffiltersubwidgetfactory.h"
#include "filterwidget/tffilterwidget.h"
#include "records/tfclock.h"
#include "subjecttest.h"
#include "tfcore/tfserviceconfig.h"
#include "tftranslations.h"

#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QJsonArray>
#include <QJsonObject>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>

namespace {
/// key | op | value type | value, with a star for a report of several.
QString reported(const TFBaseFilterWidget *control)
{
    const FilterParam::Cntrl c = control->getCntrl();
    if (c.key.isEmpty())
        return QStringLiteral("-");
    return QStringLiteral("%1 | %2 | %3 | %4%5")
        .arg(c.key, c.op, c.valueType, text(c.value), c.multiField ? QStringLiteral(" *") : QString());
}

/// Another value, as a user would choose it.
void change(TFBaseFilterWidget *control)
{
    if (auto *edit = control->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly))
        edit->setText("x");
    else if (auto *date = control->findChild<QDateEdit *>())
        date->setDate(QDate(2021, 1, 1));
    else if (auto *number = control->findChild<QSpinBox *>())
        number->setValue(7);
    else if (auto *box = control->findChild<QComboBox *>())
        box->setCurrentIndex(1);
    else
        control->findChild<QMenu *>()->actions().last()->trigger();
}
} // namespace

class TestFilterControls : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        TFClock::setNow([] { return QDateTime(QDate(2021, 5, 20), QTime(10, 0)); });
    }

    void classNameSelectsTheControlInOrder()
    {
        const QString classes =
            "DecimalTextEditInterval=TFDecimalTextEditInterval dateEditFrom=TFDateEdit "
            "SimpleYearBox=TFMultiYear "
            "MultYear=TFMultiYear CheckComboBox=TFCheckCombox UnitFactorCombobox=TFComboBox "
            "decimaltexteditinterval=TFLineEdit keywordsbox=TFLineEdit SimpleButtonXyz=TFPushbutton "
            "DateTimeInterval=TFDatetimeInterval ReportDateSimple5=TFReportDateSimple "
            "YearMonthInterval=TFYearMonthInterval YearMonthSimple=TFYearMonthSimple "
            "F9SecuIdCntrl=TFFilterLabel Nobody= =";
        TFFilterWidget bar;
        for (const QString &pair : classes.split(' ')) {
            const QString name = pair.section('=', 0, 0);
            const TFBaseFilterWidget *control = TFFilterCtlFactory::createWidget(row(name, "F"), &bar);
            QCOMPARE(name + '=' + (control ? control->metaObject()->className() : ""), pair);
        }
        QCOMPARE(debugLines().filter("not suports no contains").size(), 3);
    }

    void defaultBecomesTheReportedValue_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("defaultValue");
        QTest::addColumn<QString>("valueType");
        QTest::addColumn<QString>("expected");
        testRow("day ends late", "DateEdit", "=date'2020-03-01'", "datetime",
                "F | == | datetime | 2020-03-01 23:59:59");
        testRow("interval", "DateTimeInterval", "=date'2020-01-01';$adddays(-30)", "datetime",
                "F | >=,<= | datetime | 2020-01-01 00:00:00,2021-04-20 23:59:59 *");
        testRow("start after end", "DateTimeInterval", "date'2021-06-01';date'2021-05-01'", "",
                "F | >=,<= |  | 2021-06-01 00:00:00,2021-06-01 23:59:59 *");
        testRow("one part is ignored", "DateTimeInterval", "date'2020-01-01'", "",
                "F | >=,<= |  | 2021-05-20 00:00:00,2021-05-20 23:59:59 *");
        testRow("empty range", "DecimalTextEditInterval", "0;0", "decimal", "-");
        testRow("range", "DecimalTextEditInterval", "=0;5", "decimal", "F | >=,<= | decimal | 0,5 *");
        testRow("hidden text keeps =", "VirtualCntrl", "=12", "string", "F | == | string | =12");
        testRow("single year", "SimpleYear", "=2018-05-31", "", "F | == |  | 2018");
        testRow("many years", "MultYear", "2020", "", "F | in | stringList | [2020]");
        testRow("month", "YearMonthSimple", "=date'2019-03-31'", "string", "F | == | string | 201903");
        testRow("months", "YearMonthInterval", "", "MONTH", "MONTH | >=,<= |  | '2021-1','2021-1' *");
    }
    void defaultBecomesTheReportedValue()
    {
        QFETCH(QString, className);
        QFETCH(QString, defaultValue);
        QFETCH(QString, valueType);
        TFFilterWidget bar;
        const auto *control =
            TFFilterCtlFactory::createWidget(row(className, "F", defaultValue, valueType), &bar);
        QTEST(reported(control), "expected");
    }

    void inListOfALineKeepsItsNumbersAsText()
    {
        TFFilterWidget bar;
        Row r = row("TextEdit", "F", "1,2,,3", "Decimal");
        r.Operator = "IN";
        const auto *control = TFFilterCtlFactory::createWidget(r, &bar);
        QCOMPARE(reported(control), QString("F | in | intlist | [1|2|3]"));
        QCOMPARE(control->getCntrl().value.toList().first().userType(), int(QMetaType::QString));
    }

    void laterStartPullsTheEndAlong()
    {
        TFFilterWidget bar;
        TFDatetimeInterval interval(row("DateTimeInterval", "F", "date'2020-01-01';date'2020-02-01'"), &bar);
        const auto edits = interval.findChildren<QDateEdit *>();
        edits.first()->setDate(QDate(2020, 3, 1));
        QCOMPARE(edits.last()->date(), QDate(2020, 3, 1));
    }

    void unitListSignalsEachChoiceTwice()
    {
        Row r = row("UnitFactorCombobox", "F", "万元");
        r.UnitCategory = 1;
        TFFilterWidget bar;
        TFComboBox box(r, &bar);
        auto *inner = box.findChild<QComboBox *>();
        QCOMPARE(inner->currentText(), QString("万元"));
        QSignalSpy spy(&box, &TFComboBox::signalCurrentIndexChanged);
        emit inner->textActivated("亿元");
        QCOMPARE(spy.size(), 2);
        QCOMPARE(spy.first(), (QVariantList{1008, 1}));
    }

    void cachedCodesServeAreaAlone()
    {
        TFCacheConfig::instance()->fill(
            QJsonArray{QJsonObject{{"VALUE", 1234567}, {"NAME", "上海"}, {"TYPE", 7}, {"FILTER1", 1}},
                       QJsonObject{{"VALUE", "110000"}, {"NAME", "北京"}, {"TYPE", "7"}, {"FILTER1", "2"}}});
        Row r = row("ComboBox", "AREA");
        r.DataSource = "7";
        r.Filter = "1";
        TFFilterWidget bar;
        TFComboBox box(r, &bar);
        QCOMPARE(reported(&box), QString("AREA | == | string | 1.23457e+06"));
        TFCacheConfig::instance()->fill(QJsonValue());
    }

    void checkListLooksTextsUpAmongTheValues()
    {
        TFFilterWidget bar;
        TFCheckCombox box(withNames(row("CheckComboBox", "F", "a"), "a=a;b=b;c=c"), &bar);
        // The list checks everything first, and the default is ticked on top of it.
        QCOMPARE(reported(&box), QString("F | == | stringList | [a|b|c|a]"));
        QCOMPARE(box.objectName(), QString("CustomCheckCombobox"));

        auto *list = box.findChild<QListWidget *>();
        auto *button = box.findChild<QToolButton *>();
        list->item(2)->setCheckState(Qt::Unchecked);
        box.slotCheckStatusChanged(list->item(2), false);
        QCOMPARE(reported(&box), QString("F | == | stringList | [a|c|a]"));
        QCOMPARE(list->item(0)->checkState(), Qt::Unchecked);
        box.slotCheckStatusChanged(list->item(0), false);
        QCOMPARE(reported(&box), QString("-"));
        list->item(2)->setCheckState(Qt::Checked);
        box.slotCheckStatusChanged(list->item(2), true);
        QCOMPARE(reported(&box), QString("F | == | stringList | [b]"));
        QCOMPARE(button->text(), QString("b"));
        box.slotCheckStatusChanged(list->item(0), true);
        QCOMPARE(button->text(), QString("All"));
    }

    void longCheckListStopsGrowing()
    {
        TFFilterWidget bar;
        TFCheckCombox box(row("CheckComboBox", "F"), &bar);
        QMap<QString, QString> entries;
        for (int i = 0; i < 20; ++i)
            entries.insert(QString::number(i), QString::number(i));
        box.slotOnItemDataUpdate(entries);
        QCOMPARE(box.findChild<QListWidget *>()->minimumHeight(), 510);
    }

    void pressOnTheBoxOfAnEntryTicksItOnce()
    {
        TFFilterWidget bar;
        TFCheckCombox box(withNames(row("CheckComboBox", "F", ""), "a=a;b=b;c=c"), &bar);
        auto *list = box.findChild<QListWidget *>();
        list->resize(200, 200);
        const QRect entry = list->visualItemRect(list->item(2));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          entry.topLeft() + QPoint(8, entry.height() / 2));
        QCOMPARE(reported(&box), QString("F | == | stringList | [a|c]"));
    }

    void dotTellsAControlThatIsNotOnItsDefault()
    {
        TFFilterWidget bar;
        for (const char *name :
             {"TextEdit", "DateEdit", "DecimalTextEditInterval", "ComboBox", "SimpleYear"}) {
            auto *control =
                TFFilterCtlFactory::createWidget(withNames(row(name, "F"), "2020年=1;2019年=2"), &bar);
            const auto *dot = control->findChild<QWidget *>("filterChangedMark");
            QVERIFY2(dot->isHidden(), name);
            change(control);
            QVERIFY2(!dot->isHidden(), name);
            control->takeAsDefault();
            QVERIFY2(dot->isHidden(), name);
        }
    }

    void catalogueNamesPeriodsAndSuffixes()
    {
        Row r = row("ReportDateSimple5", "F", "=date'2019-06-30'");
        r.ParameterCategory = "1";
        const QMap<int, QString> shown{{TFServiceConfig::English, "2019年|Half year"},
                                       {TFServiceConfig::Chinese, "2019年|半年报"}};
        for (int language : {TFServiceConfig::English, TFServiceConfig::Chinese}) {
            TFServiceConfig::instance()->setCurrentLang(language);
            QVERIFY(TFTranslations::install());
            TFFilterWidget bar;
            const auto *control = TFFilterCtlFactory::createWidget(r, &bar);
            const auto boxes = control->findChildren<QComboBox *>();
            QCOMPARE(boxes.first()->currentText() + '|' + boxes.last()->currentText(), shown[language]);
            QCOMPARE(text(control->getCntrl().value), QString("2019-06-30"));
            const auto *month =
                TFFilterCtlFactory::createWidget(row("YearMonthSimple", "F", "2019-03-01"), &bar);
            QCOMPARE(text(month->getCntrl().value), QString("201903"));
        }
        TFTranslations::remove();
    }

    void reportPeriodGoesOutByItsCategory_data()
    {
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("period");
        QTest::addColumn<QString>("expected");
        testRow("third quarter", "1", "三季度", "2019-09-30");
        testRow("whole year", "1", "年度", "2019-12-31");
        testRow("service text", "2", "年度", "/Date(1577721600000+0800)");
        testRow("no category", "0", "年度", "");
        testRow("a name that is no period", "1", "Annual Report", "2018-12-31");
    }
    void reportPeriodGoesOutByItsCategory()
    {
        QFETCH(QString, category);
        QFETCH(QString, period);
        TFFilterWidget bar;
        Row r = row("ReportDateSimple", "F", "=date'2019-12-31'");
        r.ParameterCategory = category;
        const auto *control = TFFilterCtlFactory::createWidget(r, &bar);
        auto *box = control->findChildren<QComboBox *>().last();
        box->addItem(period);
        box->setCurrentText(period);
        QTEST(control->getCntrl().value.toString(), "expected");
    }
};

SUBJECT_TEST_MAIN(TestFilterControls)
#include "tst_filtercontrols.moc"
