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

    /// Text of the caption as it is shown; empty without one.
    QString shownCaption() const;

    /// Takes what the control shows now as its default. From here on a dot beside the caption tells that it
    /// shows something else. Buttons and hidden controls have no such dot.
    void takeAsDefault();

protected:
    /// A report with key, operator, value type and caption of the row, and no value yet.
    FilterParam::Cntrl described() const;

    /// The control's layout, which it makes, with the given spacing and no margins.
    QHBoxLayout *makeLayout(int spacing);

    /// The label of the caption, named "filterCaption" for the style sheet; hidden until it has a text. It
    /// keeps six pixels from the box beside it in a layout of any smaller \a spacing.
    QLabel *makeLabel(int spacing = 6);
    /// A label with the sign between the two ends of a range, with some room on both sides.
    QLabel *makeDash(const QString &sign);
    /// Writes the row's caption on the label that makeLabel() has made.
    void showCaption();

    /// Shows or hides the dot. Boxes and lines call it by themselves, buttons with a menu do not.
    void markChange();

    void resizeEvent(QResizeEvent *event) override;

private:
    QString shownText() const;
    void watchBoxes();
    void placeMark();

    QLabel *m_caption = nullptr;
    QWidget *m_mark = nullptr; ///< the dot; made with the first default
    QString m_default;
};
