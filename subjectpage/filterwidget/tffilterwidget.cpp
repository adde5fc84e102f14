#include "tffilterwidget.h"

#include "records/tfancestors.h"
#include "records/tfcategories.h"

#include <QComboBox>

#include <algorithm>

namespace {
bool isF9Control(const QString &name)
{
    return name.compare(QLatin1String("F9SecuIdCntrl"), Qt::CaseInsensitive) == 0 ||
           name.compare(QLatin1String("F9COMIDCntrl"), Qt::CaseInsensitive) == 0;
}
} // namespace

TFFilterWidget::TFFilterWidget(QWidget *parent)
    : QFrame(parent)
{}

TFFilterWidget::~TFFilterWidget() = default;

void TFFilterWidget::setFilterData(const QList<TFTableModelData::FilterData> &rows)
{
    if (m_rows != rows)
        m_rows = rows;
}

void TFFilterWidget::finalFilter(QList<FilterParam::DataSourceFilter> &dataSourceFilters,
                                 QList<FilterParam::CustomFilter> &customFilters)
{
    const QList<FilterParam::Cntrl> controls = getCntrls();
    for (FilterParam::Cntrl control : controls) {
        updateF9Filters(control);
        if (isDataSourceFilter(control.key))
            dataSourceFilters.append({control.key, control.value});
        else
            customFilters.append({control.key,
                                  QStringLiteral("%1_%2").arg(control.key).arg(control.index),
                                  control.op,
                                  {control.value}});
    }
}

void TFFilterWidget::updateF9Filters(FilterParam::Cntrl &cntrl)
{
    if (!isF9Control(cntrl.objName))
        return;
    const auto *page = TFAncestors::find<ITFPageContext>(this, "TFSubjectMainFrame");
    if (!page) {
        qCDebug(lcFilter) << "F9 cntrl:" << cntrl.objName << cntrl.key << "=" << cntrl.value
                          << " op:" << cntrl.op;
        return;
    }
    const QString value = page->f9Arguments().value(cntrl.key).toString();
    if (value.isEmpty())
        return;
    cntrl.value = value;
    qCDebug(lcFilter) << "F9 cntrl 0:" << cntrl.key << "=" << cntrl.value << " op:" << cntrl.op;
}

QList<FilterParam::Cntrl> TFFilterWidget::getCntrls() const
{
    return {};
}

bool TFFilterWidget::isDataSourceFilter(const QString &key) const
{
    if (key == QLatin1String("keywords"))
        return true;
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(),
                     [&key](const TFTableModelData::FilterData &r) { return r.FieldName == key; });
    return row != m_rows.end() && row->ClassName != QLatin1String("LabelControl") &&
           row->ParameterCategory == QLatin1String("1");
}

void TFFilterWidget::setUnitText(const QString &text)
{
    if (auto *unit = findChild<QComboBox *>(QStringLiteral("UnitFactorCombobox")))
        unit->setCurrentText(text);
}

void TFFilterWidget::slotSimpleButtonGetDataClicked()
{
    emit sigGetDataButtonClicked(QString());
}

void TFFilterWidget::slotSimpleButtonSaveToExcel(int type)
{
    emit signalSimpleButtonSaveToExcel(type, QStringLiteral("excel"));
}

void TFFilterWidget::updateDynamicArgs()
{
    if (!m_argsCarrier)
        return;
    const QMap<QString, QVariant> arguments = m_argsCarrier->property("dynamicArgs").toMap();
    if (m_dynamicArgs != arguments)
        m_dynamicArgs = arguments;
}
