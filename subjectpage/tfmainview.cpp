#include "tfmainview.h"

#include "mulittable/tfsubjecttablemodel.h"
#include "net/tfviewproperties.h"
#include "records/tfcategories.h"
#include "tfchartview.h"
#include "tfsubjecttablewidget.h"
#include "tfviewfactory.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

namespace {
const char kViewConfigKey[] = "View_Config";
const char kChartType[] = "ViewDataChart";
} // namespace

TFMainView::TFMainView(QWidget *parent)
    : QStackedWidget(parent)
{}

TFMainView::~TFMainView() = default;

int TFMainView::viewKind(const QJsonValue &config)
{
    const QJsonArray rows = config.toObject().value(QLatin1String(kViewConfigKey)).toArray();
    const bool isChart = TFUc::readViewProperties(rows).ObjViewType == QLatin1String(kChartType);
    return isChart ? TFBaseView::ChartView : TFBaseView::TableView;
}

void TFMainView::parseConfig(const QJsonValue &config, bool isNew)
{
    auto *view = qobject_cast<TFBaseView *>(widget(indexOfKind(viewKind(config))));
    if (view) {
        setCurrentWidget(view);
        view->setViewId(m_viewId);
        view->reset(m_viewId);
        view->parseConfig(config, isNew);
        if (auto *chart = qobject_cast<ITFChartView *>(view))
            chart->requestData();
    }
    qCDebug(lcPage) << "main view size:" << size();
}

int TFMainView::indexOfKind(int kind)
{
    const int known = m_kinds.indexOf(kind);
    if (known >= 0)
        return known;
    const bool isTable = kind == TFBaseView::TableView;
    TFBaseView *view = TFViewFactory::make(kind, isTable ? this : nullptr, true);
    if (!view)
        return -1;
    addWidget(view);
    if (auto *table = qobject_cast<TFSubjectTableWidget *>(view))
        connectTable(table);
    m_kinds.append(kind);
    return m_kinds.size() - 1;
}

void TFMainView::connectTable(TFSubjectTableWidget *table)
{
    using SectorSignal = void (TFMainView::*)(QString, QString);
    connect(table, &TFSubjectTableWidget::sigRowData, this, &TFMainView::sigRowData);
    connect(table, QOverload<QString, QString>::of(&TFSubjectTableWidget::sigSectorNumChanged), this,
            static_cast<SectorSignal>(&TFMainView::sigSectorNumChanged));
    connect(table, &TFSubjectTableWidget::signalGetSubViewCfg, this, &TFMainView::signalGetSubViewCfg);
    connect(table, &TFSubjectTableWidget::updateChildren, this, &TFMainView::updateChildren);
    connect(table, &TFSubjectTableWidget::clearChildren, this, &TFMainView::clearChildren);
    connect(table, &TFSubjectTableWidget::signalCurrentPageChanged, this,
            &TFMainView::signalCurrentPageChanged);
}

TFBaseView *TFMainView::currentView() const
{
    return qobject_cast<TFBaseView *>(currentWidget());
}

TFSubjectTableWidget *TFMainView::table() const
{
    return qobject_cast<TFSubjectTableWidget *>(currentWidget());
}

qint64 TFMainView::currentViewId() const
{
    const TFBaseView *view = currentView();
    return view ? view->viewId() : -1;
}

void TFMainView::setViewId(qint64 id)
{
    if (TFSubjectTableWidget *view = table())
        view->reset(id);
    m_viewId = id;
}

void TFMainView::setFilterBarVisible(bool visible)
{
    if (TFSubjectTableWidget *view = table())
        view->setFilterBarVisible(visible);
}

void TFMainView::setPageBarVisible(bool visible)
{
    if (TFSubjectTableWidget *view = table())
        view->setPageBarVisible(visible);
}

bool TFMainView::isFilterBarVisible() const
{
    return table() && table()->isFilterBarVisible();
}

bool TFMainView::isPageBarVisible() const
{
    return table() && table()->isPageBarVisible();
}

void TFMainView::setRequestName(const QString &name)
{
    if (TFBaseView *view = currentView())
        view->setRequestName(name);
}

void TFMainView::startLoading()
{
    if (TFBaseView *view = currentView())
        view->startLoading();
}

void TFMainView::finished()
{
    if (TFBaseView *view = currentView())
        view->finished();
}

void TFMainView::load(const FilterParam::DataSourceFilter &pair)
{
    if (TFSubjectTableWidget *view = table())
        view->load(pair);
}

QList<FilterParam::CustomFilter> TFMainView::filters() const
{
    const TFBaseView *view = currentView();
    return view ? view->filters() : QList<FilterParam::CustomFilter>();
}

QList<FilterParam::DataSourceFilter> TFMainView::parameters() const
{
    const TFBaseView *view = currentView();
    return view ? view->parameters() : QList<FilterParam::DataSourceFilter>();
}

QList<FilterParam::Cntrl> TFMainView::cntrls() const
{
    const TFBaseView *view = currentView();
    return view ? view->cntrls() : QList<FilterParam::Cntrl>();
}

QList<TFTableModelData::FilterData> TFMainView::filterList() const
{
    const TFBaseView *view = currentView();
    return view ? view->filterList() : QList<TFTableModelData::FilterData>();
}

QString TFMainView::childLinkText(qint64 childId) const
{
    const TFSubjectTableWidget *view = table();
    return view ? view->childLinkText(childId) : QString();
}

RowData TFMainView::firstRow() const
{
    const TFSubjectTableModel *model = table() ? table()->model() : nullptr;
    if (!model || model->rowCount() == 0)
        return {};
    return model->index(0, 0).data(TFSubjectTableModel::RowDataRole).value<RowData>();
}

QList<QVariantMap> TFMainView::allRows() const
{
    QList<QVariantMap> maps;
    const TFSubjectTableModel *model = table() ? table()->model() : nullptr;
    const TFRowStore rows = model ? model->rowStore() : TFRowStore();
    for (int row = 0; row < rows.rowCount(); ++row) {
        QVariantMap map;
        for (int i = 0; i < rows.cellCount(row); ++i)
            map.insert(rows.prototype(row, i).fieldName, rows.value(row, i));
        maps.append(map);
    }
    return maps;
}
