#include "tffilterdescription.h"

#include "filterwidget/tfbasefilterwidget.h"
#include "filterwidget/tffilterwidget.h"
#include "tfbaseview.h"
#include "tfcontrolsurface.h"

#include <QJsonArray>
#include <QJsonObject>

namespace TFFilterDescription {

QJsonArray reports(const TFFilterWidget &bar)
{
    // The bar leaves out the controls without a key, in its order; its reports alone lack the configured
    // word.
    const QList<FilterParam::Cntrl> reported = bar.getCntrls();
    QJsonArray reports;
    for (const TFBaseFilterWidget *control : bar.controls()) {
        if (control->getCntrl().key.isEmpty() || reports.size() == reported.size())
            continue;
        const FilterParam::Cntrl &cntrl = reported.at(reports.size());
        reports.append(QJsonObject{{"class", control->row().ClassName},
                                   {"objName", cntrl.objName},
                                   {"caption", cntrl.caption},
                                   {"key", cntrl.key},
                                   {"value", QJsonValue::fromVariant(cntrl.value)},
                                   {"valueType", cntrl.valueType},
                                   {"op", cntrl.op},
                                   {"multiField", cntrl.multiField}});
    }
    return reports;
}

QJsonArray controls(const TFFilterWidget &bar)
{
    QJsonArray controls;
    for (TFBaseFilterWidget *control : bar.controls()) {
        const TFControlSurface surface(control);
        controls.append(QJsonObject{{"class", control->row().ClassName},
                                    {"label", control->shownCaption()},
                                    {"text", surface.text()},
                                    {"entries", QJsonArray::fromStringList(surface.entries())},
                                    {"checked", QJsonArray::fromStringList(surface.checked())},
                                    {"visible", !control->isHidden() && !bar.isHidden()},
                                    {"enabled", control->isEnabled()}});
    }
    return controls;
}

QJsonArray parameters(const TFBaseView &view)
{
    QJsonArray parameters;
    for (const FilterParam::DataSourceFilter &parameter : view.parameters())
        parameters.append(
            QJsonObject{{"key", parameter.key}, {"value", QJsonValue::fromVariant(parameter.value)}});
    return parameters;
}

QJsonArray conditions(const TFBaseView &view)
{
    QJsonArray conditions;
    for (const FilterParam::CustomFilter &filter : view.filters())
        conditions.append(QJsonObject{{"fieldName", filter.fieldName},
                                      {"paramName", filter.paramName},
                                      {"op", filter.op},
                                      {"values", QJsonArray::fromVariantList(filter.values)}});
    return conditions;
}

} // namespace TFFilterDescription
