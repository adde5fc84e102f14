#pragma once

#include "tfbasefilterwidget.h"

class QComboBox;

/// One month, reported as yyyyMM.
class TFYearMonthSimple : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFYearMonthSimple(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;

private:
    QComboBox *m_year;
    QComboBox *m_month;
};
