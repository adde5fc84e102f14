// The flows of the table widget: from configuration, filter and page to requests, and from replies to rows.

#include "tfsubjecttablewidget.h"

#include "filterwidget/tffilterwidget.h"
#include "jsonparser/tfjsonparser.h"
#include "jsonparser/tfviewconfigtable.h"
#include "mulittable/tfheaderdatastruct.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfsujecttableview.h"
#include "mulittable/tftablegridholder.h"
#include "net/tfdm.h"
#include "net/tfrowsreply.h"
#include "pagination/tfpaginationbar.h"
#include "records/tfancestors.h"
#include "records/tfcategories.h"
#include "tfcore/invokerbase.h"
#include "tfcore/tfcore.h"
#include "tfsubjecttableexport.h"

#include <QSignalBlocker>

namespace {
enum ReplyFlag { ConfigReply = 0, RowsReply = 1, WholeSetReply = 2 };

const char kMainFrameClass[] = "TFSubjectMainFrame";
const char kContainerClass[] = "TFRightContainer";
} // namespace

bool TFSubjectTableWidget::parseConfig(const QJsonValue &json, bool isNew)
{
    TFRowsReply reply;
    reply.envelope.data = json;
    return readConfig(reply, isNew);
}

bool TFSubjectTableWidget::readConfig(const TFRowsReply &reply, bool isNew)
{
    m_header->clearChildren();
    if (!m_parser->parseConfig(reply.envelope.data, m_header.get(), reply.rows)) {
        qCWarning(lcTable) << "json parse error";
        finished();
        return false;
    }
    if (isNew) {
        m_filterBar->setFilterData(m_parser->filterData());
        if (m_filterBarVisible)
            m_filterBar->show();
        orderKeyboard();
        m_total = 0;
        m_pageBar->reset();
    }
    if (!isCross() || !isNew)
        m_header->showBands();
    if (!m_isMain || !isNew || isOrder())
        return true;

    clear();
    updateFilters({});
    announceSector();
    requestRows();
    return true;
}

void TFSubjectTableWidget::announceSector()
{
    const TFViewConfigTable *config = m_parser->viewConfigTable();
    const QString sector = config ? config->sectorNum() : QString();
    if (!sector.isEmpty())
        emit sigSectorNumChanged(sector, config->rootSectorNum());
}

void TFSubjectTableWidget::load(const FilterParam::DataSourceFilter &pair)
{
    updateFilters(pair);
    requestRows();
}

void TFSubjectTableWidget::query()
{
    m_pageBar->reset();
    clear();
    startLoading();
    updateFilters({});
    requestPage(m_pageBar->currentPage(), m_pageBar->perCnt(), false);
}

void TFSubjectTableWidget::updateFilters(const FilterParam::DataSourceFilter &pair)
{
    FilterParam::DataSourceFilter extra = pair;
    if (extra.key.isNull() || extra.value.isNull()) {
        if (const auto *page = TFAncestors::find<ITFPageContext>(this, kMainFrameClass))
            extra = page->blockFilter();
    }
    QList<FilterParam::DataSourceFilter> parameters;
    QList<FilterParam::CustomFilter> filters;
    m_filterBar->finalFilter(parameters, filters);
    parameters.append(extra);
    parameters.append(order());
    setParameters(parameters);
    setFilters(filters);
}

void TFSubjectTableWidget::requestRows()
{
    if (isCross())
        requestWholeSet();
    else
        requestPage(m_pageBar->currentPage(), m_pageBar->perCnt(), false);
}

void TFSubjectTableWidget::requestPage(int page, int size, bool noPaging)
{
    m_parser->clearData();
    startLoading();
    if (!m_dm)
        return;
    const TFUc::TFRequestContent content =
        TFUc::viewDataRequest(viewId(), requestParameters(), filters(), {noPaging, page, size});
    m_dm->startRequest(content, [this](bool isOk, const QByteArray &data) { takePage(isOk, data); });
    m_isRequested = true;
    m_sentContent = content;
}

void TFSubjectTableWidget::takePage(bool isOk, const QByteArray &data)
{
    if (!isOk) {
        noData();
        return;
    }
    if (m_sentContent == m_appliedContent && m_parser->hasRawRows()) {
        finished();
        return;
    }
    m_appliedContent = m_sentContent;
    TFRowsReply reply;
    if (!TFRowsReply::read(data, reply) || !isStillWanted()) {
        noData();
        return;
    }
    showReply(reply, RowsReply);
}

void TFSubjectTableWidget::requestWholeSet()
{
    clear();
    startLoading();
    if (!m_dm)
        return;
    m_isRequested = true;
    m_dm->startRequest(TFUc::wholeDataRequest(viewId(), requestParameters(), filters()),
                       [this](bool isOk, const QByteArray &data) { takeWholeSet(isOk, data); });
}

void TFSubjectTableWidget::takeWholeSet(bool isOk, const QByteArray &data)
{
    TFRowsReply reply;
    if (isOk && TFRowsReply::read(data, reply) && isStillWanted())
        showReply(reply, WholeSetReply);
}

bool TFSubjectTableWidget::isStillWanted()
{
    if (!m_isMain)
        return true;
    const auto *container = TFAncestors::find<ITFCurrentView>(this, kContainerClass);
    if (container && container->currentView() != viewId())
        return false;
    if (isOrder())
        emit clearChildren();
    return true;
}

bool TFSubjectTableWidget::handleReply(const QJsonValue &json, const QString &spare, int flag)
{
    Q_UNUSED(spare)
    TFRowsReply reply;
    reply.envelope.data = json;
    return showReply(reply, flag);
}

bool TFSubjectTableWidget::takeReply(const QByteArray &data, int flag)
{
    TFRowsReply reply;
    if (!TFRowsReply::read(data, reply))
        return false;
    showReply(reply, flag);
    return true;
}

bool TFSubjectTableWidget::showReply(const TFRowsReply &reply, int flag)
{
    bool isShown = false;
    switch (flag) {
    case ConfigReply:
        isShown = !m_isMain || readConfig(reply, true);
        break;
    case RowsReply:
        isShown = parseData(reply);
        break;
    case WholeSetReply:
        isShown = readConfig(reply, false) && parseData(reply);
        break;
    default:
        break;
    }
    if (!isShown) {
        noData();
        return false;
    }
    showTime();
    if (flag == ConfigReply)
        return true;
    finished();
    if (m_isMain)
        emit updateChildren();
    return true;
}

bool TFSubjectTableWidget::parseData(const TFRowsReply &reply)
{
    qCDebug(lcTable) << "mMultiHeaderData.size() : " << m_header->leaves().size();
    m_grid = m_gridHolder->makeGrid(m_header.get());
    connectGrid();
    if (!m_parser->parseData(reply.envelope.data, reply.rows)) {
        m_grid = nullptr;
        return false;
    }
    m_filterBar->setUnitText(m_header->firstUnit());
    m_gridHolder->showRows(*m_parser);
    orderKeyboard();
    setDataCount(m_parser->rowCount(), m_parser->pageIndex(), m_parser->pageSize());
    return true;
}

void TFSubjectTableWidget::connectGrid()
{
    // The grid is the context of what it must not outlive.
    if (m_isMain) {
        TFSubjectTableModel *model = m_gridHolder->model();
        connect(m_grid, &TFSujectTableView::clicked, this, [this, model](int row) {
            const QVariant values = model->index(row, 0).data(TFSubjectTableModel::RowDataRole);
            emit sigRowData(values.value<RowData>(), true);
        });
    }
    connect(m_filterBar, &TFFilterWidget::signalComboBoxChanged, m_grid,
            [this](int unitCode, int unitCategory) {
                m_gridHolder->setUnit(m_header.get(), unitCode, unitCategory);
            });
    connect(m_grid, &TFSujectTableView::linkActivated, this, &TFSubjectTableWidget::openLink);
}

void TFSubjectTableWidget::openLink(const QString &link)
{
    QObject *window = TFCore::instance()->mainWindow();
    if (link.isEmpty() || !window)
        return;
    QString argument = link;
    InvokerBase invoker;
    invoker.bind("QString", &argument).invoke(window, "openStringUrl");
}

void TFSubjectTableWidget::setDataCount(int total, int pageIndex, int pageSize)
{
    qCDebug(lcTable) << "===>total cnt:" << total;
    m_total = total;
    const QSignalBlocker blocker(m_pageBar);
    m_pageBar->reset();
    m_pageBar->setTotalCount(total);
    m_pageBar->setCurrentPage(pageIndex);
    m_pageBar->setPerCnt(pageSize);
}

void TFSubjectTableWidget::exportRows(int type)
{
    m_export->exportRows(type, exportRequest(), m_header.get());
}

void TFSubjectTableWidget::exportTo(const QString &folder)
{
    m_export->exportTo(folder, exportRequest(), m_header.get());
}

TFUc::TFRequestContent TFSubjectTableWidget::exportRequest() const
{
    return TFUc::viewDataRequest(viewId(), requestParameters(), filters(),
                                 {true, m_pageBar->currentPage(), m_pageBar->perCnt()});
}
