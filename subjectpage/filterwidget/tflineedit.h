#pragma once

#include "tfbasefilterwidget.h"

class QLineEdit;

/// A text box. Without a field it is the keyword box of the page.
class TFLineEdit : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFLineEdit(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;

private:
    QLineEdit *m_edit;
};
