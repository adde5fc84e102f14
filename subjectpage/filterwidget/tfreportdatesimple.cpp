#include "tfreportdatesimple.h"

#include "tffilterdefaults.h"
#include "tffocusdelegate.h"

#include <QComboBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>

namespace {
constexpr int FirstYear = 1992;
const QLatin1String HalfYearClass("ReportDateSimple5");
const QLatin1String QuarterClass("ReportDateSimple2");
} // namespace

TFReportDateSimple::TFReportDateSimple(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_year(new QComboBox(this))
    , m_period(new QComboBox(this))
    , m_label(makeLabel())
{
    m_year->setItemDelegate(new TFFocusDelegate(m_year));
    m_period->setItemDelegate(new TFFocusDelegate(m_period));
    m_label->setBuddy(m_year);
    QHBoxLayout *layout = makeLayout(6);
    layout->addWidget(m_label);
    layout->addWidget(m_year);
    layout->addWidget(m_period);
    fillYears();
    fillPeriods();
    selectDefault();
}

int TFReportDateSimple::monthsOfPeriod(const QString &name)
{
    static const QMap<QString, int> months{{QStringLiteral("一季度"), 3},  {QStringLiteral("二季度"), 6},
                                           {QStringLiteral("半年报"), 6},  {QStringLiteral("三季度"), 9},
                                           {QStringLiteral("四季度"), 12}, {QStringLiteral("年度"), 12}};
    return months.value(name, 0);
}

void TFReportDateSimple::fillYears()
{
    if (row().NameValues.isEmpty()) {
        m_year->addItems(TFFilterDefaults::yearsDownTo(FirstYear));
        return;
    }
    for (const auto &pair : TFFilterDefaults::nameValues(row().NameValues)) {
        m_years.insert(pair.first, pair.second);
        m_periods.insert(pair.first, pair.second);
    }
    m_year->addItems(m_years.keys());
    m_period->addItems(m_periods.keys());
    m_year->setCurrentText(row().DefualtValue);
}

void TFReportDateSimple::fillPeriods()
{
    if (row().ClassName == HalfYearClass) {
        m_period->addItems({tr("Semiannual Report"), tr("Annual Report")});
    } else if (row().ClassName == QuarterClass) {
        m_period->addItems({tr("First Quarterly Report"), tr("Second Quarterly Report"),
                            tr("Third Quarterly Report"), tr("Forth Quarterly Report")});
    } else {
        m_period->addItems({tr("First Quarterly Report"), tr("Semiannual Report"),
                            tr("Third Quarterly Report"), tr("Annual Report")});
    }
}

void TFReportDateSimple::selectDefault()
{
    m_label->setText(row().Caption);
    const QString text = row().DefualtValue;
    if (!text.contains(QLatin1String("date")))
        return; // a default that is a call selects nothing: the boxes stay on their first entries
    const QDate date = TFFilterDefaults::literalDate(text);
    if (!date.isValid())
        return;
    m_year->setCurrentText(QString::number(date.year()) + TFFilterDefaults::yearSuffix());
    for (int i = 0; i < m_period->count(); ++i) {
        if (monthsOfPeriod(m_period->itemText(i)) == date.month()) {
            m_period->setCurrentIndex(i);
            return;
        }
    }
}

FilterParam::Cntrl TFReportDateSimple::getCntrl() const
{
    FilterParam::Cntrl cntrl = described();
    cntrl.valueType.clear();
    const int year = m_year->currentText().remove(TFFilterDefaults::yearSuffix()).toInt();
    const QDate end = QDate(year, 1, 1).addMonths(monthsOfPeriod(m_period->currentText())).addDays(-1);
    if (row().ParameterCategory == QLatin1String("1"))
        cntrl.value = end.toString(QStringLiteral("yyyy-MM-dd"));
    else if (row().ParameterCategory == QLatin1String("2"))
        cntrl.value = TFFilterDefaults::serviceDateText(QDateTime(end, QTime(0, 0)));
    else
        cntrl.value = QString(QLatin1String(""));
    return cntrl;
}
