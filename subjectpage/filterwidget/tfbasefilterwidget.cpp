#include "tfbasefilterwidget.h"

#include "tffilteroperators.h"

#include <QHBoxLayout>
#include <QLabel>

TFSubWidgetExpandData::TFSubWidgetExpandData(const TFTableModelData::FilterData &row, QWidget *parent)
    : QWidget(parent)
    , m_row(row)
{}

TFSubWidgetExpandData::~TFSubWidgetExpandData() = default;

TFBaseFilterWidget::TFBaseFilterWidget(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFSubWidgetExpandData(row, parent)
{
    setObjectName(row.ClassName);
}

TFBaseFilterWidget::~TFBaseFilterWidget() = default;

FilterParam::Cntrl TFBaseFilterWidget::described() const
{
    const TFTableModelData::FilterData data = row();
    FilterParam::Cntrl cntrl;
    cntrl.key = data.FieldName;
    cntrl.op = TFFilterOperators::serviceWord(data.Operator);
    cntrl.valueType = data.ValueType;
    cntrl.caption = data.Caption;
    return cntrl;
}

QHBoxLayout *TFBaseFilterWidget::makeLayout(int spacing)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

QLabel *TFBaseFilterWidget::makeLabel()
{
    auto *label = new QLabel(this);
    label->setObjectName(QStringLiteral("filterCaption"));
    return label;
}
