#pragma once

#include "tfbasefilterwidget.h"

#include <QMap>
#include <QVariant>

class QComboBox;

/// A year and a report period. Reports the last day of the period.
class TFReportDateSimple : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFReportDateSimple(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;

    /// Months from the start of the year to the end of the period of that name; 0 for a name that is none.
    static int monthsOfPeriod(const QString &name);

private:
    void fillYears();
    void fillPeriods();
    void selectDefault();

    QComboBox *m_year;
    QComboBox *m_period;
    QMap<QString, QVariant> m_years;
    QMap<QString, QVariant> m_periods;
};
