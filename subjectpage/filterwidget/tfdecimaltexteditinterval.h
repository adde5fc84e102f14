#pragma once

#include "tfbasefilterwidget.h"

class QSpinBox;

/// A range of whole numbers. With both ends on 0 it sets no filter.
class TFDecimalTextEditInterval : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFDecimalTextEditInterval(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;

private:
    QSpinBox *makeBox(int step);

    QSpinBox *m_start;
    QSpinBox *m_end;
};
