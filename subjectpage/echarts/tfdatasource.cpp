#include "tfdatasource.h"

#include "jsonparser/tfdatajsontable.h"
#include "jsonparser/tffilterjsontable.h"
#include "jsonparser/tfjsontablefactory.h"
#include "jsonparser/tfobjectviewjsontable.h"
#include "jsonparser/tftablenames.h"
#include "jsonparser/tfviewconfigtable.h"
#include "tfchartdatamessage.h"
#include "tfchartdatarows.h"
#include "tfchartdataseries.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QTimer>

#include <algorithm>

namespace {
constexpr int kMenuDelayMs = 50;
constexpr QLatin1String kLabelControl("LabelControl");
constexpr QLatin1String kLive("1");
} // namespace

TFDataSource::TFDataSource(QObject *parent)
    : QObject(parent)
{}

TFDataSource::~TFDataSource() = default;

template <typename Table> Table *TFDataSource::table(int id) const
{
    const auto it = m_tables.find(id);
    return it == m_tables.end() ? nullptr : static_cast<Table *>(it->second.get());
}

TFViewConfigTable *TFDataSource::viewConfig() const
{
    return table<TFViewConfigTable>(TFTableId::ViewConfig);
}

void TFDataSource::readTables(const QJsonObject &object)
{
    for (const QLatin1String name : {TFTableName::Data, TFTableName::ViewConfig, TFTableName::ObjectView}) {
        if (!object.contains(name))
            continue;
        const int id = TFTableName::idOf(name);
        m_tables.erase(id);
        std::unique_ptr<TFBaseJsonTable> table = TFJsonTableFactory::create(id);
        table->initWith(object.value(name));
        m_tables.emplace(id, std::move(table));
    }
}

TFChartData::Rows TFDataSource::rows() const
{
    const auto *data = table<TFDataJsonTable>(TFTableId::Data);
    return data ? data->rows() : TFChartData::Rows();
}

TFChartViewJsonTable *TFDataSource::chartTable() const
{
    return viewConfig() ? viewConfig()->chartTable() : nullptr;
}

/// Takes the snapshot of the chart table, and returns the whole of it.
TFChartData::Config TFDataSource::takeConfig()
{
    const TFChartData::Config config = chartTable() ? chartTable()->config() : TFChartData::Config();
    m_chart = config;
    m_chart.ChartDataConfigs.clear();
    return config;
}

void TFDataSource::build(TFChartData::ChartSet &set, const TFChartData::Rows &rows,
                         const TFChartData::Config &config) const
{
    using TFChartData::DateLabels;
    // The rows of a main table may hold dates as they were shown.
    TFChartData::buildSeries(set, rows, config,
                             isGetChartData() ? DateLabels::Always : DateLabels::WhereIntegers);
}

void TFDataSource::loadConfig(const QJsonValue &json)
{
    m_tables.clear();
    readTables(json.toObject());
    const TFChartData::Config config = takeConfig();
    if (config.IsSwitchXAxis)
        return;
    TFChartData::ChartSet set;
    build(set, TFChartData::selectRows(rows(), config), config);
    m_set.series.append(set.series);
}

void TFDataSource::loadConfigAndData(const QJsonValue &json)
{
    clear();
    readTables(json.toObject());
    orderAndBuild();
}

void TFDataSource::setRows(const TFChartData::Rows &rows)
{
    clear();
    if (!rows.isEmpty()) {
        auto data = std::make_unique<TFDataJsonTable>();
        data->setRows(rows);
        m_tables.emplace(TFTableId::Data, std::move(data));
    }
    orderAndBuild();
}

void TFDataSource::clear()
{
    m_set.clear();
    m_tables.erase(TFTableId::Data);
    recordSent({});
    emit signalClear();
}

void TFDataSource::orderAndBuild()
{
    if (!chartTable())
        return;
    const TFViewConfigTable *view = viewConfig();
    const TFChartData::Config config = takeConfig();
    const TFChartData::Rows selected = TFChartData::selectRows(rows(), config);
    if (view->isCross()) {
        build(m_set, selected, TFChartData::expandCross(selected, config));
        return;
    }
    const TFChartData::ViewTraits traits{view->isOrder(), view->isGetChartData(), view->orderProperty()};
    build(m_set, TFChartData::orderRows(selected, config, traits), config);
}

QString TFDataSource::caption() const
{
    const auto *view = table<TFObjectViewJsonTable>(TFTableId::ObjectView);
    return view ? view->name() : QString();
}

bool TFDataSource::isCross() const
{
    return viewConfig() && viewConfig()->isCross();
}

bool TFDataSource::isPie() const
{
    return TFChartData::isPie(m_chart);
}

bool TFDataSource::isFilterShown() const
{
    return viewConfig() && viewConfig()->isShowFilter();
}

bool TFDataSource::isGetChartData() const
{
    return !viewConfig() || viewConfig()->isGetChartData();
}

FilterParam::DataSourceFilter TFDataSource::order() const
{
    if (!viewConfig())
        return {};
    const QPair<QString, QVariant> order = viewConfig()->orderProperty();
    return {order.first, order.second};
}

QList<TFTableModelData::FilterData> TFDataSource::filterList() const
{
    const TFFilterJsonTable *filters = viewConfig() ? viewConfig()->filterTable() : nullptr;
    return filters ? filters->filters() : QList<TFTableModelData::FilterData>();
}

bool TFDataSource::isFilterLive(const QString &name) const
{
    const QList<TFTableModelData::FilterData> filters = filterList();
    const auto filter =
        std::find_if(filters.begin(), filters.end(),
                     [&name](const TFTableModelData::FilterData &entry) { return entry.FieldName == name; });
    return filter != filters.end() && filter->ClassName != kLabelControl &&
           filter->ParameterCategory == kLive;
}

void TFDataSource::slotWebConnectFinished()
{
    emit signalCanShowChart();
}

void TFDataSource::recordSent(const QByteArray &message)
{
    m_lastMessage = message;
    ++m_sentCount;
}

void TFDataSource::slotRefreshChartDaTa()
{
    if (!TFChartData::isPie(m_chart)) {
        recordSent(TFChartData::mixedMessage(m_set, m_chart));
        emit signalMixedChartData(m_lastMessage);
        return;
    }
    const QByteArray message = m_chart.IsSwitchXAxis ? TFChartData::pivotPieMessage(m_set, m_chart)
                                                     : TFChartData::pieMessage(m_set, m_chart);
    if (message.isEmpty())
        return;
    recordSent(message);
    emit signalPieData(message);
}

void TFDataSource::slotChangedTheme(QByteArray theme)
{
    m_theme = theme;
    emit signalChangeTheme(theme);
}

void TFDataSource::saveImage()
{
    QTimer::singleShot(kMenuDelayMs, this, [this] { emit signalSaveImage(QString()); });
}

void TFDataSource::copyImage()
{
    QTimer::singleShot(kMenuDelayMs, this, &TFDataSource::signalCopyImage);
}

void TFDataSource::printImage()
{
    QTimer::singleShot(kMenuDelayMs, this, &TFDataSource::signalPrintImage);
}

void TFDataSource::slotAlert(QString text)
{
    Q_UNUSED(text)
}
