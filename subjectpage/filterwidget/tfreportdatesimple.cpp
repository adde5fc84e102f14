#include "tfreportdatesimple.h"

#include "tffilterdefaults.h"
#include "tffocusdelegate.h"

#include <QComboBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>
#include <iterator>

namespace {
constexpr int FirstYear = 1992;
const QLatin1String HalfYearClass("ReportDateSimple5");
const QLatin1String QuarterClass("ReportDateSimple2");

struct Period
{
    const char *name; ///< a catalogue gives its own, the one that it gives the entry of the box
    int months;
};

const Period Periods[] = {
    {QT_TRANSLATE_NOOP("TFReportDateSimple", "一季度"), 3},
    {QT_TRANSLATE_NOOP("TFReportDateSimple", "二季度"), 6},
    {QT_TRANSLATE_NOOP("TFReportDateSimple", "半年报"), 6},
    {QT_TRANSLATE_NOOP("TFReportDateSimple", "三季度"), 9},
    {QT_TRANSLATE_NOOP("TFReportDateSimple", "四季度"), 12},
    {QT_TRANSLATE_NOOP("TFReportDateSimple", "年度"), 12},
};
} // namespace

TFReportDateSimple::TFReportDateSimple(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_year(new QComboBox(this))
    , m_period(new QComboBox(this))
{
    m_year->setItemDelegate(new TFFocusDelegate(m_year));
    m_period->setItemDelegate(new TFFocusDelegate(m_period));
    QLabel *label = makeLabel();
    label->setBuddy(m_year);
    QHBoxLayout *layout = makeLayout(6);
    layout->addWidget(label);
    layout->addWidget(m_year);
    layout->addWidget(m_period);
    fillYears();
    fillPeriods();
    selectDefault();
}

int TFReportDateSimple::monthsOfPeriod(const QString &name)
{
    const auto period = std::find_if(std::begin(Periods), std::end(Periods),
                                     [&name](const Period &p) { return tr(p.name) == name; });
    return period == std::end(Periods) ? 0 : period->months;
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
    showCaption();
    QString text = row().DefualtValue;
    if (!text.contains(QLatin1String("date")))
        return; // a default that is a call selects nothing: the boxes stay on their first entries
    text.remove(QLatin1String("=date")).remove(QLatin1Char('\''));
    const QDate date = QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
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
