#include "tfpageexport.h"

#include "echarts/tfmulticharts.h"
#include "jsonparser/tfjsonparser.h"
#include "mulittable/tfheaderdatastruct.h"
#include "net/tfuc.h"
#include "tfsubjecttableexport.h"
#include "tfsubjecttablewidget.h"

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
    auto *source = new TFSubjectTableExport(chart);
    auto *parser = new TFSubject::TFJsonParser(source);
    m_chartHeader = std::make_unique<TFTreeStruct>(QString());
    if (!parser->parseConfig(chart->configuration(), m_chartHeader.get()) || m_chartHeader->leaves().isEmpty()) {
        *reason = QStringLiteral("the document of the chart describes no columns");
        delete source;
        return false;
    }
    m_chartHeader->showBands();
    watch(source);
    connect(source, &TFSubjectTableExport::ended, source, &QObject::deleteLater);
    const TFUc::TFRequestContent content =
        TFUc::viewDataRequest(chart->viewId(), chart->requestParameters(), chart->filters(), {true, 1, 1});
    source->exportTo(folder, content, parser, m_chartHeader.get());
    return true;
}

void TFPageExport::watch(TFSubjectTableExport *source)
{
    m_export = source;
    connect(source, &TFSubjectTableExport::failed, this, &TFPageExport::takeFailure, Qt::UniqueConnection);
}
