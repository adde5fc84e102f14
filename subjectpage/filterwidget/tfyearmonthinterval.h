#pragma once

#include "tfbasefilterwidget.h"

class QComboBox;

/// A range of months. Its field stands in the row's ValueType.
class TFYearMonthInterval : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFYearMonthInterval(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;

private:
    QComboBox *makeBox(const QStringList &entries);

    QComboBox *m_startYear;
    QComboBox *m_startMonth;
    QComboBox *m_endYear;
    QComboBox *m_endMonth;
};
