#include "tfyearmonthsimple.h"

#include "tffilterdefaults.h"
#include "tffocusdelegate.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace {
constexpr int FirstYear = 1992;
}

TFYearMonthSimple::TFYearMonthSimple(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_year(new QComboBox(this))
    , m_month(new QComboBox(this))
{
    m_year->setItemDelegate(new TFFocusDelegate(m_year));
    m_month->setItemDelegate(new TFFocusDelegate(m_month));
    m_year->addItems(TFFilterDefaults::yearsDownTo(FirstYear));
    m_month->addItems(TFFilterDefaults::months());
    QLabel *label = makeLabel();
    label->setBuddy(m_year);
    QHBoxLayout *layout = makeLayout(6);
    layout->addWidget(label);
    showCaption();
    layout->addWidget(m_year);
    layout->addWidget(m_month);
    // Quotes belong to a literal; a text without its word is taken as it stands.
    const bool isLiteral = row.DefualtValue.contains(QLatin1String("date"));
    const QDate date = isLiteral ? TFFilterDefaults::literalDate(row.DefualtValue)
                                 : QDate::fromString(TFFilterDefaults::withoutEquals(row.DefualtValue),
                                                     QStringLiteral("yyyy-MM-dd"));
    if (!date.isValid())
        return;
    m_year->setCurrentText(QString::number(date.year()) + TFFilterDefaults::yearSuffix());
    m_month->setCurrentText(QString::number(date.month()) + TFFilterDefaults::monthSuffix());
}

FilterParam::Cntrl TFYearMonthSimple::getCntrl() const
{
    FilterParam::Cntrl cntrl = described();
    const int year = m_year->currentText().remove(TFFilterDefaults::yearSuffix()).toInt();
    const int month = m_month->currentText().remove(TFFilterDefaults::monthSuffix()).toInt();
    cntrl.value = QDate(year, month, 1).toString(QStringLiteral("yyyyMM"));
    return cntrl;
}
