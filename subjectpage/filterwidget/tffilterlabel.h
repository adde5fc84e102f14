#pragma once

#include "tfbasefilterwidget.h"

/// The control without a surface: reports the constant of its default.
class TFFilterLabel : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFFilterLabel(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;
};
