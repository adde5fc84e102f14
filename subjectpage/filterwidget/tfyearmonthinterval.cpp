#include "tfyearmonthinterval.h"

#include "tffilterdefaults.h"
#include "tffocusdelegate.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace {
constexpr int FirstYear = 1999;

QStringList yearsOf(const QString &nameValues)
{
    return nameValues.isEmpty() ? TFFilterDefaults::yearsDownTo(FirstYear)
                                : nameValues.split(QLatin1Char(';'));
}

QString yearMonth(const QComboBox *year, const QComboBox *month)
{
    return year->currentText().remove(TFFilterDefaults::yearSuffix()) + QLatin1Char('-') +
           month->currentText().remove(TFFilterDefaults::monthSuffix());
}
} // namespace

TFYearMonthInterval::TFYearMonthInterval(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_startYear(makeBox(yearsOf(row.NameValues)))
    , m_startMonth(makeBox(TFFilterDefaults::months()))
    , m_endYear(makeBox(yearsOf(row.NameValues)))
    , m_endMonth(makeBox(TFFilterDefaults::months()))
{
    QLabel *label = makeLabel(2);
    label->setBuddy(m_startYear);
    QHBoxLayout *layout = makeLayout(2);
    layout->addWidget(label);
    showCaption();
    layout->addWidget(m_startYear);
    layout->addWidget(m_startMonth);
    layout->addWidget(makeDash(QStringLiteral("-")));
    layout->addWidget(m_endYear);
    layout->addWidget(m_endMonth);
}

QComboBox *TFYearMonthInterval::makeBox(const QStringList &entries)
{
    auto *box = new QComboBox(this);
    box->setItemDelegate(new TFFocusDelegate(box));
    box->setFixedWidth(row().Width);
    box->addItems(entries);
    return box;
}

FilterParam::Cntrl TFYearMonthInterval::getCntrl() const
{
    FilterParam::Cntrl cntrl = described();
    cntrl.value = QStringLiteral("'%1','%2'")
                      .arg(yearMonth(m_startYear, m_startMonth), yearMonth(m_endYear, m_endMonth));
    cntrl.op = QStringLiteral(">=,<=");
    cntrl.multiField = true;
    cntrl.key = row().ValueType;
    cntrl.valueType.clear();
    return cntrl;
}
