#include "tffilterwidget.h"

#include "expression/tfcustommath.h"
#include "flowlayout.h"
#include "records/tfancestors.h"
#include "records/tfcategories.h"
#include "tfcombobox.h"
#include "tffilterdefaults.h"
#include "tffiltersubwidgetfactory.h"
#include "tffiltertranslation.h"

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
    , m_layout(new FlowLayout(5, 12, 5, this))
    , m_functions(TFCustomMath::instance())
{}

TFFilterWidget::~TFFilterWidget() = default;

void TFFilterWidget::setFilterData(const QList<TFTableModelData::FilterData> &rows)
{
    if (m_rows != rows)
        m_rows = rows;
    while (QLayoutItem *item = m_layout->takeAt(0))
        delete item;
    qDeleteAll(m_controls);
    m_controls.clear();
    for (const TFTableModelData::FilterData &row : qAsConst(m_rows)) {
        if (row.ClassName == QLatin1String("GroupFlagControl") ||
            row.ClassName == QLatin1String("SimpleButtonSort"))
            continue;
        if (TFBaseFilterWidget *control = TFFilterCtlFactory::createWidget(row, this)) {
            m_controls.append(control);
            m_layout->addWidget(control);
        }
    }
}

QList<FilterParam::Cntrl> TFFilterWidget::getCntrls() const
{
    QList<FilterParam::Cntrl> cntrls;
    for (const TFBaseFilterWidget *control : m_controls) {
        FilterParam::Cntrl cntrl = control->getCntrl();
        if (cntrl.key.isEmpty())
            continue;
        cntrl.objName = control->objectName();
        resolveDynamicDefault(cntrl);
        cntrls.append(cntrl);
    }
    return cntrls;
}

void TFFilterWidget::resolveDynamicDefault(FilterParam::Cntrl &cntrl) const
{
    QString function;
    QString caption;
    if (!TFFilterDefaults::isDynamic(cntrl.value.toString(), &function, &caption))
        return;
    QVariant source;
    for (const TFBaseFilterWidget *control : m_controls) {
        const FilterParam::Cntrl other = control->getCntrl();
        if (other.caption == caption) {
            source = other.value;
            break;
        }
    }
    if (!source.isValid())
        return;
    const QString text = source.toString();
    QList<QVariant> arguments;
    if (text.contains(QLatin1Char(','))) {
        for (const QString &part : text.split(QLatin1Char(',')))
            arguments.append(part);
    } else if (!text.isEmpty()) {
        arguments.append(source);
    }
    QVariant result;
    if (m_functions->callFunction(function, arguments, result) && result.isValid())
        cntrl.value = result;
}

void TFFilterWidget::finalFilter(QList<FilterParam::DataSourceFilter> &dataSourceFilters,
                                 QList<FilterParam::CustomFilter> &customFilters)
{
    for (const FilterParam::Cntrl &cntrl : getCntrls()) {
        for (FilterParam::Cntrl entry : TFFilterTranslation::expanded(this, cntrl)) {
            if (entry.key.isEmpty() || !entry.value.isValid())
                continue;
            updateF9Filters(entry);
            appendFilter(entry, dataSourceFilters, customFilters);
        }
    }
}

void TFFilterWidget::appendFilter(const FilterParam::Cntrl &entry,
                                  QList<FilterParam::DataSourceFilter> &dataSourceFilters,
                                  QList<FilterParam::CustomFilter> &customFilters) const
{
    const bool isDataSource = isDataSourceFilter(entry.key);
    if (isDataSource != entry.dataSourceFilter)
        qCDebug(lcFilter) << "isDataSrc:" << isDataSource
                          << "filter cntrl data source flag:" << entry.dataSourceFilter;
    if (isDataSource) {
        dataSourceFilters.append({entry.key, entry.value});
        return;
    }
    const FilterParam::CustomFilter filter = TFFilterTranslation::condition(entry);
    if (entry.key != QLatin1String("PROVINCE") || !filter.values.isEmpty())
        customFilters.append(filter);
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
    for (TFBaseFilterWidget *control : qAsConst(m_controls)) {
        if (control->objectName() != QLatin1String("UnitFactorCombobox"))
            continue;
        if (auto *units = qobject_cast<TFComboBox *>(control)) {
            units->setCurrentText(text);
            units->takeAsDefault();
        }
        return;
    }
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
