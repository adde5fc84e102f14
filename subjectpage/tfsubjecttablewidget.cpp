#include "tfsubjecttablewidget.h"

#include "filterwidget/tffilterwidget.h"
#include "jsonparser/tfjsonparser.h"
#include "jsonparser/tfviewconfigtable.h"
#include "mulittable/tfheaderdatastruct.h"
#include "mulittable/tfsubjecttablemodel.h"
#include "mulittable/tfsujecttableview.h"
#include "mulittable/tftablegridholder.h"
#include "net/tfdm.h"
#include "pagination/tfpaginationbar.h"
#include "records/tfcategories.h"
#include "tfloadingline.h"
#include "tfsubjecttableexport.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>

namespace {
constexpr int kMessageWidth = 300;
constexpr double kMillisecondsPerSecond = 1000.0;
} // namespace

TFSubjectTableWidget::TFSubjectTableWidget(QWidget *parent, bool isMain)
    : TFBaseView(parent)
    , m_isMain(isMain)
    , m_filterBarVisible(isMain)
    , m_layout(new QVBoxLayout(this))
    , m_filterBar(new TFFilterWidget(this))
    , m_pageLine(new QFrame(this))
    , m_timeLabel(new QLabel(m_pageLine))
    , m_pageBar(new TFPaginationBar(m_pageLine))
    , m_header(std::make_unique<TFTreeStruct>(QString()))
    , m_parser(new TFSubject::TFJsonParser(this))
    , m_gridHolder(new TFTableGridHolder(this))
    , m_dm(std::make_unique<TFDm>(this))
    , m_loadingLine(new TFLoadingLine(this))
    , m_export(new TFSubjectTableExport(this))
{
    createConnections();
}

TFSubjectTableWidget::~TFSubjectTableWidget() = default;

void TFSubjectTableWidget::createConnections()
{
    connect(m_parser, &TFSubject::TFJsonParser::signalSubTableJsonData, this,
            [this](qint64 id, const QString &caption) { emit signalGetSubViewCfg(id, caption, viewId()); });
    connect(m_filterBar, &TFFilterWidget::sigGetDataButtonClicked, this, &TFSubjectTableWidget::query);
    connect(m_pageBar, &TFPaginationBar::signalCurrentPageChanged, this,
            [this](int page, int size) { requestPage(page, size, false); });
    connect(m_filterBar, &TFFilterWidget::signalSimpleButtonSaveToExcel, this,
            &TFSubjectTableWidget::exportRows);
}

void TFSubjectTableWidget::initLayout()
{
    m_filterBar->setObjectName(QStringLiteral("filterWidget"));
    m_pageLine->setObjectName(QStringLiteral("pageBar"));
    m_timeLabel->setObjectName(QStringLiteral("TimeSpendLabel"));
    m_timeLabel->setAlignment(Qt::AlignCenter);

    auto *line = new QHBoxLayout(m_pageLine);
    line->setSpacing(0);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_timeLabel);
    line->addStretch(10);
    line->addWidget(m_pageBar);

    m_filterBar->setVisible(m_isMain && m_filterBarVisible);
    m_gridHolder->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_filterBar);
    m_layout->addWidget(m_gridHolder, 1);
    m_layout->addWidget(m_pageLine);
}

void TFSubjectTableWidget::orderKeyboard()
{
    // Controls and grids come later than the page bar and stand above it.
    QWidget *previous = m_filterBar;
    const QList<QWidget *> controls = m_filterBar->findChildren<QWidget *>();
    for (QWidget *control : controls) {
        // The lists that drop down are windows of their own.
        if (control->focusPolicy() == Qt::NoFocus || control->window() != window())
            continue;
        setTabOrder(previous, control);
        previous = control;
    }
    if (QWidget *rows = m_grid ? m_grid->rowsWidget() : nullptr)
        setTabOrder(m_timeLabel, rows);
}

void TFSubjectTableWidget::setFilterBarVisible(bool visible)
{
    if (m_filterBarVisible == visible)
        return;
    m_filterBarVisible = visible;
    m_filterBar->setVisible(visible);
}

void TFSubjectTableWidget::setPageBarVisible(bool visible)
{
    if (m_pageBarVisible == visible)
        return;
    m_pageBarVisible = visible;
    m_pageLine->setVisible(visible);
}

QString TFSubjectTableWidget::childLinkText(qint64 childId) const
{
    return m_parser->childViewParams(childId);
}

TFSubjectTableModel *TFSubjectTableWidget::model() const
{
    return m_grid ? m_gridHolder->model() : nullptr;
}

void TFSubjectTableWidget::clear()
{
    m_parser->clearData();
    if (!m_grid)
        return;
    m_grid->deselectAll();
    m_gridHolder->model()->clear();
}

bool TFSubjectTableWidget::isFilterLive(const QString &name)
{
    return m_filterBar->isDataSourceFilter(name);
}

void TFSubjectTableWidget::setFilterArguments(const QMap<QString, QVariant> &arguments)
{
    m_filterBar->setDynamicArgs(arguments);
}

void TFSubjectTableWidget::reset(qint64 viewId)
{
    m_filterBar->setFilterData({});
    setViewId(viewId);
    m_isRequested = false;
    m_timeLabel->show();
    m_pageBar->reset();
    clear();
    startLoading();
}

void TFSubjectTableWidget::showTime()
{
    m_timeLabel->show();
}

void TFSubjectTableWidget::showState(const QString &text, Qt::CursorShape cursor)
{
    m_timeLabel->setText(text);
    setCursor(cursor);
    if (cursor == Qt::WaitCursor)
        m_loadingLine->start();
    else
        m_loadingLine->stop();
}

void TFSubjectTableWidget::startLoading()
{
    m_startTime = QTime::currentTime();
    m_gridHolder->setMessage(tr("加载中..."));
    showState(
        QStringLiteral("加载中... (起始时间: %1)").arg(m_startTime.toString(QStringLiteral("hh:mm:ss zzz"))),
        Qt::WaitCursor);
}

void TFSubjectTableWidget::noData()
{
    m_timeLabel->show();
    m_gridHolder->setMessage(tr("无数据"));
    showState(QStringLiteral("无数据!"), Qt::ArrowCursor);
}

void TFSubjectTableWidget::finished()
{
    m_timeLabel->show();
    m_gridHolder->setMessage(QString());
    const double seconds = m_startTime.msecsTo(QTime::currentTime()) / kMillisecondsPerSecond;
    showState(QStringLiteral("耗时 %1 秒").arg(seconds, 0, 'f', 4), Qt::ArrowCursor);
}

QString TFSubjectTableWidget::status() const
{
    return m_timeLabel->text();
}

bool TFSubjectTableWidget::isLoading() const
{
    return cursor().shape() == Qt::WaitCursor;
}

bool TFSubjectTableWidget::isFilterBarShown() const
{
    return !m_filterBar->isHidden();
}

bool TFSubjectTableWidget::isPageBarShown() const
{
    return !m_pageLine->isHidden();
}

FilterParam::DataSourceFilter TFSubjectTableWidget::order() const
{
    const QPair<QString, QVariant> order = m_parser->orderProperty();
    return {order.first, order.second};
}

QList<FilterParam::Cntrl> TFSubjectTableWidget::cntrls() const
{
    return m_filterBar->getCntrls();
}

QList<TFTableModelData::FilterData> TFSubjectTableWidget::filterList() const
{
    return m_parser->filterData();
}

int TFSubjectTableWidget::viewKind() const
{
    return TableView;
}

QString TFSubjectTableWidget::caption() const
{
    return m_parser->objectViewName();
}

QTime TFSubjectTableWidget::startTime() const
{
    return m_startTime;
}

void TFSubjectTableWidget::setChildFilters(const QList<FilterParam::Cntrl> &controls, const RowData &row,
                                           const QString &linkText)
{
    if (!m_isMain)
        TFBaseView::setChildFilters(controls, row, linkText);
}

bool TFSubjectTableWidget::isCross() const
{
    return m_parser->isCross();
}

bool TFSubjectTableWidget::isOrder() const
{
    const TFViewConfigTable *config = m_parser->viewConfigTable();
    return config && config->isOrder();
}

void TFSubjectTableWidget::showMessage(QString errorMsg, QString link)
{
    QMessageBox box(this);
    box.setFixedWidth(kMessageWidth);
    box.setWindowTitle(errorMsg);
    box.setText(link);
    box.exec();
}
