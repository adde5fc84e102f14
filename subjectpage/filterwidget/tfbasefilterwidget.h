#pragma once

#include "records/filterparam.h"
#include "records/tftablemodeldata.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;

/// A widget that keeps the configuration row it was made from.
class TFSubWidgetExpandData : public QWidget
{
    Q_OBJECT

public:
    TFSubWidgetExpandData(const TFTableModelData::FilterData &row, QWidget *parent);
    ~TFSubWidgetExpandData() override;

protected:
    TFTableModelData::FilterData row() const { return m_row; }

private:
    TFTableModelData::FilterData m_row;
};

/// One control of the filter bar. Its object name is the row's ClassName.
class TFBaseFilterWidget : public TFSubWidgetExpandData
{
    Q_OBJECT

public:
    TFBaseFilterWidget(const TFTableModelData::FilterData &row, QWidget *parent);
    ~TFBaseFilterWidget() override;

    /// What the control reports now. An empty key means that it contributes nothing.
    virtual FilterParam::Cntrl getCntrl() const = 0;

protected:
    /// A report with key, operator, value type and caption of the row, and no value yet.
    FilterParam::Cntrl described() const;

    /// The control's layout, which it makes, with the given spacing and no margins.
    QHBoxLayout *makeLayout(int spacing);

    /// The label of the caption, named "filterCaption" for the style sheet; its text is set by the control.
    QLabel *makeLabel();
};
