#pragma once

#include "tfbasefilterwidget.h"

class QDateEdit;

/// One date with a calendar. Reports the end of the chosen day.
class TFDateEdit : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFDateEdit(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;

    /// A date box with a calendar popup, as all controls of the bar use it; owned by \a parent.
    static QDateEdit *makeEditor(QWidget *parent);

private:
    QDateEdit *m_edit;
};
