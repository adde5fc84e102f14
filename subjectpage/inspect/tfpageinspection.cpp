#include "tfpageinspection.h"

#include "echarts/tfmulticharts.h"
#include "tfcore/itfabstractpage.h"
#include "tfcore/tfwebview.h"
#include "tfmainview.h"
#include "tfpagesteps.h"
#include "tfrightcontainer.h"
#include "tfsubjectmainframe.h"
#include "tftreedescription.h"
#include "tfviewdescription.h"

#include <QJsonArray>

#include <algorithm>

TFPageInspection::TFPageInspection(QWidget *page, TFSubjectMainFrame *frame)
    : QObject(page)
    , m_page(page)
    , m_frame(frame)
    , m_export(nullptr)
{}

TFPageInspection::~TFPageInspection() = default;

QJsonObject TFPageInspection::describe() const
{
    const TFRightContainer *views = m_frame->rightContainer();
    TFWebView *web = m_frame->shownWebView();
    const bool hasViews = views && !web;
    return {{"url", m_page->property("pageUrl").toString()},
            {"windowTitle", m_windowTitle},
            {"frameTitle", m_frame->windowTitle()},
            {"caption", m_frame->caption()},
            {"titleLabel", views ? views->title() : QString()},
            {"state", state()},
            {"tree", TFTreeDescription::mainTree(*m_frame->leftContainer())},
            {"blocks", TFTreeDescription::blockTree(*m_frame->leftContainer())},
            {"web", web ? QJsonValue(web->QWebEngineView::url().toString()) : QJsonValue()},
            {"main", hasViews ? TFViewDescription::mainView(*views) : QJsonValue()},
            {"children", hasViews ? TFViewDescription::childViews(*views) : QJsonArray()}};
}

QString TFPageInspection::state() const
{
    if (m_frame->shownWebView())
        return QStringLiteral("shown");
    if (m_frame->isLoading())
        return QStringLiteral("loading");
    const TFRightContainer *views = m_frame->rightContainer();
    return views ? TFViewDescription::state(*views) : QStringLiteral("waiting");
}

bool TFPageInspection::perform(const QJsonObject &step, QString *reason)
{
    return step.value(QLatin1String("do")) == QLatin1String("export")
               ? startExport(step, reason)
               : TFPageSteps::perform(*m_frame, step, reason);
}

bool TFPageInspection::startExport(const QJsonObject &step, QString *reason)
{
    const TFRightContainer *views = m_frame->shownWebView() ? nullptr : m_frame->rightContainer();
    return m_export.start(views ? views->mainView()->currentView() : nullptr,
                          step.value(QLatin1String("folder")).toString(), reason);
}

bool TFPageInspection::isAtWork() const
{
    if (m_export.isBusy())
        return true;
    const QList<TFMultiCharts *> charts = m_frame->findChildren<TFMultiCharts *>();
    return std::any_of(charts.begin(), charts.end(),
                       [](const TFMultiCharts *chart) { return !chart->isPageReady(); });
}
