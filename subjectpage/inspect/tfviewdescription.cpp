#include "tfviewdescription.h"

#include "echarts/tfmulticharts.h"
#include "filterwidget/tffilterwidget.h"
#include "tfchartdescription.h"
#include "tffilterdescription.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"
#include "tfsubjecttablewidget.h"
#include "tftabledescription.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTabWidget>

namespace {
const TFSubjectTableWidget *asTable(const TFBaseView *view)
{
    return qobject_cast<const TFSubjectTableWidget *>(view);
}

const TFMultiCharts *asChart(const TFBaseView *view)
{
    return qobject_cast<const TFMultiCharts *>(view);
}

QJsonObject ownPart(const TFBaseView *view)
{
    if (const TFMultiCharts *chart = asChart(view))
        return TFChartDescription::describe(*chart);
    const TFSubjectTableWidget *table = asTable(view);
    return table ? TFTableDescription::describe(*table) : QJsonObject();
}

const TFFilterWidget &filterBarOf(const TFBaseView *view)
{
    const TFMultiCharts *chart = asChart(view);
    return chart ? *chart->filterBar() : *asTable(view)->filterBar();
}

QJsonObject shownParts(const TFBaseView *view, bool isTitleShown)
{
    const TFSubjectTableWidget *table = asTable(view);
    return {{"filterBar", !filterBarOf(view).isHidden()},
            {"pageBar", table && table->isPageBarShown()},
            {"title", isTitleShown}};
}

/// \a view is a table or a chart; there are no others.
QJsonObject describeView(const TFBaseView *view, const QJsonValue &tab, bool isTitleShown)
{
    const TFFilterWidget &bar = filterBarOf(view);
    QJsonObject object = ownPart(view);
    object.insert("kind", asChart(view) ? "chart" : "table");
    object.insert("viewId", view->viewId());
    object.insert("caption", view->caption());
    object.insert("tab", tab);
    object.insert("filters", TFFilterDescription::reports(bar));
    object.insert("controls", TFFilterDescription::controls(bar));
    object.insert("final", QJsonObject{{"parameters", TFFilterDescription::parameters(*view)},
                                       {"filters", TFFilterDescription::conditions(*view)}});
    object.insert("shown", shownParts(view, isTitleShown));
    return object;
}
} // namespace

namespace TFViewDescription {

QJsonValue mainView(const TFRightContainer &container)
{
    const TFBaseView *view = container.mainView()->currentView();
    return view ? QJsonValue(describeView(view, QJsonValue(), container.isTitleVisible())) : QJsonValue();
}

QJsonArray childViews(const TFRightContainer &container)
{
    QJsonArray views;
    const QTabWidget *tabs = container.childViews();
    for (int i = 0; i < tabs->count(); ++i) {
        const auto *view = qobject_cast<const TFBaseView *>(tabs->widget(i));
        if (view)
            views.append(describeView(
                view, QJsonObject{{"text", tabs->tabText(i)}, {"toolTip", tabs->tabToolTip(i)}}, false));
    }
    return views;
}

QString state(const TFRightContainer &container)
{
    const TFBaseView *view = container.mainView()->currentView();
    if (const TFMultiCharts *chart = asChart(view))
        return TFChartDescription::state(*chart);
    const TFSubjectTableWidget *table = asTable(view);
    return table ? TFTableDescription::state(*table) : QStringLiteral("waiting");
}

} // namespace TFViewDescription
