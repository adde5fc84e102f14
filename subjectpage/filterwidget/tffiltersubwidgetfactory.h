#pragma once

#include "records/tftablemodeldata.h"

class TFBaseFilterWidget;
class TFFilterWidget;

/// Makes the control of a configuration row by its ClassName and wires it to the bar.
class TFFilterCtlFactory
{
public:
    /// The control, owned by \a bar, or null for an empty or unknown ClassName (an unknown one is logged).
    static TFBaseFilterWidget *createWidget(const TFTableModelData::FilterData &row, TFFilterWidget *bar);
};
