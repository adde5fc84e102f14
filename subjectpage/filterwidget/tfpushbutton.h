#pragma once

#include "tfbasefilterwidget.h"

class QToolButton;

/// A button of the bar: query, export (with a menu) or sort, by the row's ClassName. Reports nothing.
class TFPushbutton : public TFBaseFilterWidget
{
    Q_OBJECT

public:
    TFPushbutton(const TFTableModelData::FilterData &row, QWidget *parent);

    FilterParam::Cntrl getCntrl() const override { return {}; }

signals:
    void clicked();
    /// \a type is 1 for saving, 0 for opening the workbook at once.
    void clickedSaveBtn(int type = 0);

private:
    void becomePlain();
    void becomeExport();
    void loadIcon();

    QToolButton *m_button;
};
