#include "tfpageexport.h"

#include "echarts/tfmulticharts.h"
#include "mulittable/tfheaderdatastruct.h"
#include "tfsubjecttableexport.h"
#include "tfsubjecttablewidget.h"

#include <cmath>

namespace {
void addColumn(TFTreeStruct *header, const QString &caption, const QString &valueType)
{
    HeaderFieldInfo info;
    info.fieldName = caption;
    info.caption = caption;
    info.valueType = valueType;
    info.visible = true;
    header->addChild(new TFTreeStruct(info));
}

void fillHeader(TFTreeStruct *header, const TFDataSource &source)
{
    addColumn(header, source.xField(), QStringLiteral("String"));
    for (const TFChartData::ChartSeries &series : source.chartSet().series)
        addColumn(header, series.name, QStringLiteral("Decimal"));
}

QList<QList<QVariant>> rowsOf(const TFChartData::ChartSet &set)
{
    QList<QList<QVariant>> rows;
    for (int i = 0; i < set.labels.size(); ++i) {
        QList<QVariant> row{set.labels.at(i)};
        for (const TFChartData::ChartSeries &series : set.series)
            row.append(i < series.values.size() && std::isfinite(series.values.at(i)) ? series.values.at(i)
                                                                                      : QVariant());
        rows.append(row);
    }
    return rows;
}
} // namespace

TFPageExport::TFPageExport(QObject *parent)
    : QObject(parent)
{}

TFPageExport::~TFPageExport() = default;

bool TFPageExport::isBusy() const
{
    return m_export && m_export->isBusy();
}

QString TFPageExport::takeFault()
{
    return std::exchange(m_fault, QString());
}

bool TFPageExport::start(TFBaseView *view, const QString &folder, QString *reason)
{
    m_fault.clear();
    if (isBusy()) {
        *reason = QStringLiteral("an export is under way");
        return false;
    }
    if (auto *table = qobject_cast<TFSubjectTableWidget *>(view)) {
        watch(table->tableExport());
        table->exportTo(folder);
        return true;
    }
    if (auto *chart = qobject_cast<TFMultiCharts *>(view))
        return startChart(chart, folder, reason);
    *reason = QStringLiteral("the page shows no view to export");
    return false;
}

bool TFPageExport::startChart(TFMultiCharts *chart, const QString &folder, QString *reason)
{
    if (!chart->dataSource().hasSeries()) {
        *reason = QStringLiteral("the chart shows nothing");
        return false;
    }
    auto *target = new TFSubjectTableExport(chart);
    watch(target);
    connect(target, &TFSubjectTableExport::ended, target, &QObject::deleteLater);
    TFTreeStruct header{QString()};
    fillHeader(&header, chart->dataSource());
    target->saveTo(folder, header, rowsOf(chart->dataSource().chartSet()));
    return true;
}

void TFPageExport::watch(TFSubjectTableExport *source)
{
    m_export = source;
    connect(source, &TFSubjectTableExport::failed, this, &TFPageExport::takeFailure, Qt::UniqueConnection);
}
