#include "tfpagesteps.h"

#include "tfsubjectmainframe.h"
#include "tftreesteps.h"
#include "tfviewsteps.h"

#include <QHash>
#include <QJsonObject>

namespace {
using Step = bool (*)(TFSubjectMainFrame &, const QJsonObject &, QString *);

template <bool (*step)(TFTreeWidgetContainer &, const QJsonObject &, QString *)>
bool onTrees(TFSubjectMainFrame &frame, const QJsonObject &values, QString *reason)
{
    return step(*frame.leftContainer(), values, reason);
}

template <bool (*step)(TFRightContainer &, const QJsonObject &, QString *)>
bool onViews(TFSubjectMainFrame &frame, const QJsonObject &values, QString *reason)
{
    if (frame.rightContainer() && !frame.shownWebView())
        return step(*frame.rightContainer(), values, reason);
    *reason = QStringLiteral("the page shows no view");
    return false;
}

const QHash<QString, Step> &steps()
{
    static const QHash<QString, Step> table = {
        {QStringLiteral("open"), onTrees<TFTreeSteps::open>},
        {QStringLiteral("search"), onTrees<TFTreeSteps::search>},
        {QStringLiteral("check"), onTrees<TFTreeSteps::check>},
        {QStringLiteral("row"), onViews<TFViewSteps::row>},
        {QStringLiteral("link"), onViews<TFViewSteps::link>},
        {QStringLiteral("sort"), onViews<TFViewSteps::sort>},
        {QStringLiteral("page"), onViews<TFViewSteps::page>},
        {QStringLiteral("pageSize"), onViews<TFViewSteps::pageSize>},
        {QStringLiteral("filter"), onViews<TFViewSteps::filter>},
        {QStringLiteral("unit"), onViews<TFViewSteps::unit>},
        {QStringLiteral("query"), onViews<TFViewSteps::query>},
        {QStringLiteral("tab"), onViews<TFViewSteps::tab>},
    };
    return table;
}
} // namespace

namespace TFPageSteps {

bool perform(TFSubjectMainFrame &frame, const QJsonObject &step, QString *reason)
{
    const QString word = step.value(QLatin1String("do")).toString();
    if (const Step function = steps().value(word))
        return function(frame, step, reason);
    *reason = QStringLiteral("a page knows no step \"%1\"").arg(word);
    return false;
}

} // namespace TFPageSteps
