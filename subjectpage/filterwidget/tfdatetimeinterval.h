#pragma once

#include "tfbasefilterwidget.h"

class QDateEdit;
class TFCustomMath;

/// A range of days. The end can't lie before the start.
class TFDatetimeInterval : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFDatetimeInterval(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override;

private:
    QString resolved(QString part) const;
    void applyDefault();

    QDateEdit *m_start;
    QDateEdit *m_end;
    TFCustomMath *m_functions;
};
