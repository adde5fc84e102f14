#include "tfviewfactory.h"

#include "echarts/tfmulticharts.h"
#include "tfsubjecttablewidget.h"

#include <QHash>

namespace {
TFBaseView *makeTable(QWidget *parent, bool isMain)
{
    auto *table = new TFSubjectTableWidget(parent, isMain);
    table->initLayout();
    return table;
}

TFBaseView *makeChart(QWidget *parent, bool)
{
    return new TFMultiCharts(parent);
}

QHash<int, TFViewFactory::Maker> &makers()
{
    static QHash<int, TFViewFactory::Maker> all = {{TFBaseView::TableView, makeTable},
                                                   {TFBaseView::ChartView, makeChart}};
    return all;
}
} // namespace

void TFViewFactory::registerKind(int kind, Maker maker)
{
    makers().insert(kind, std::move(maker));
}

TFBaseView *TFViewFactory::make(int kind, QWidget *parent, bool isMain)
{
    const Maker maker = makers().value(kind);
    return maker ? maker(parent, isMain) : nullptr;
}

TFBaseView *TFViewFactory::create(int kind, qint64 viewId, const QJsonValue &config, QWidget *parent,
                                  bool isMain)
{
    TFBaseView *view = make(kind, parent, isMain);
    if (!view)
        return nullptr;
    if (kind == TFBaseView::TableView)
        view->blockSignals(true);
    view->setViewId(viewId);
    view->parseConfig(config, true);
    return view;
}
