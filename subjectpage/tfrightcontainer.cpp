#include "tfrightcontainer.h"

#include "jsonparser/tfjsonparser.h"
#include "net/tfdm.h"
#include "net/tfuc.h"
#include "records/tfcategories.h"
#include "tfbaseview.h"
#include "tfchartview.h"
#include "tfmainview.h"
#include "tfviewfactory.h"

#include <QMutex>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int kTabTextLength = 10;
constexpr int kOpenTabBars = 5; ///< heights of the tab bar that open child views have at least
constexpr int kRowsFlag = 1;
constexpr int kWholeSetFlag = 2;
constexpr int kChildPageSize = 200;
const QList<int> kSizesWithChildren = {300, 200};

/// Taken around the making of child views, by every container of the process.
QMutex &subWidgetsMutex()
{
    static QMutex mutex;
    return mutex;
}

QString tabText(const QString &caption)
{
    return caption.size() <= kTabTextLength ? caption : caption.left(kTabTextLength) + QStringLiteral("...");
}
} // namespace

TFRightContainer::TFRightContainer(QWidget *parent)
    : TFVerticalContainer(parent)
    , m_mainView(new TFMainView(this))
    , m_tabs(new QTabWidget(this))
    , m_corner(new QPushButton(m_tabs))
    , m_parser(new TFSubject::TFJsonParser(this))
    , m_dm(std::make_unique<TFDm>(this))
{
    setObjectName(QStringLiteral("rightSubjectContainer"));
    m_mainView->setObjectName(QStringLiteral("mainView"));
    m_tabs->setObjectName(QStringLiteral("subViewContainer"));
    m_corner->setObjectName(QStringLiteral("cornerButton"));
    createLayout();
    createConnections();
}

TFRightContainer::~TFRightContainer() = default;

void TFRightContainer::createLayout()
{
    setTitleVisible(true);
    auto *frame = new QWidget;
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_mainView->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    layout->addWidget(m_mainView);
    addWidget(frame);
    addWidget(m_tabs);
    m_tabs->hide();
    m_corner->setCheckable(true);
    m_corner->setToolTip(tr("折叠或展开"));
    m_corner->setAccessibleName(m_corner->toolTip());
    m_tabs->setCornerWidget(m_corner);
}

void TFRightContainer::createConnections()
{
    connect(m_mainView, &TFMainView::signalGetSubViewCfg, this,
            [this](qlonglong id, const QString &, qlonglong parentId) { requestChildConfig(id, parentId); });
    connect(m_mainView, QOverload<QString, QString>::of(&TFMainView::sigSectorNumChanged), this,
            QOverload<QString, QString>::of(&TFRightContainer::sigSectorNumChanged));
    connect(m_mainView, &TFMainView::updateChildren, this, &TFRightContainer::updateChildren);
    connect(m_mainView, &TFMainView::clearChildren, this, &TFRightContainer::clearChildren);
    connect(m_mainView, &TFMainView::sigRowData, this, &TFRightContainer::slotMainTableItemRowClicked);
    connect(m_corner, &QPushButton::clicked, this, &TFRightContainer::slotHideTab);
}

void TFRightContainer::refreshPage(qlonglong obj_vw_id, QString title)
{
    qCDebug(lcPage) << "refresh right container:" << obj_vw_id << " title:" << title;
    m_currentView = -1;
    m_childState.clear();
    m_currentView = obj_vw_id;
    setTitle(title);
    m_tabs->hide();
    removeTabs();
    m_mainView->setViewId(obj_vw_id);
    m_mainView->setRequestName(QStringLiteral("reqMainCfg"));
    m_mainView->startLoading();

    const TFBaseView *top = m_mainView->currentView();
    const TFUc::Parameters parameters = top ? top->requestParameters() : TFUc::Parameters();
    m_dm->startRequest(TFUc::viewConfigRequest(obj_vw_id, parameters, m_mainView->filters()),
                       [this](bool isOk, const QByteArray &data) { takeConfig(isOk, data); });
}

void TFRightContainer::removeTabs()
{
    const QSignalBlocker blocker(m_tabs);
    while (m_tabs->count() > 0) {
        QWidget *view = m_tabs->widget(0);
        m_tabs->removeTab(0);
        delete view;
    }
}

void TFRightContainer::takeConfig(bool isOk, const QByteArray &data)
{
    // Whichever reply comes last fills the main view, also one for a page that was left.
    m_mainView->finished();
    if (!isOk) {
        qCDebug(lcPage) << "get subject config failed:" << data;
        return;
    }
    NtResponse response;
    if (!TFJSP::parseResponse(data, response))
        return;
    m_mainView->parseConfig(response.data, true);
    emit signalDataChanged();
}

void TFRightContainer::requestChildConfig(qlonglong id, qlonglong parentId)
{
    if (m_currentView != parentId || m_childState.contains(id))
        return;
    m_childState.insert(id, false);
    if (m_childViewsVisible)
        m_tabs->show();
    m_dm->startRequest(TFUc::viewConfigRequest(id, {}, {}),
                       [this, id](bool isOk, const QByteArray &data) { takeChildConfig(id, isOk, data); });
}

void TFRightContainer::takeChildConfig(qlonglong id, bool isOk, const QByteArray &data)
{
    NtResponse response;
    if (!isOk || !TFJSP::parseResponse(data, response))
        return;
    {
        QMutexLocker lock(&subWidgetsMutex());
        createSubWidgets(id, response.data);
    }
    emit signalDataChanged();
}

void TFRightContainer::createSubWidgets(qlonglong id, QJsonValue data)
{
    if (data.isNull()) {
        qCDebug(lcPage) << Q_FUNC_INFO << "id: " << id << " no data";
        return;
    }
    if (!m_childState.contains(id))
        return;
    // In its place from the start: one that is moved is given its style again, with all that is in it.
    auto *stack = m_tabs->findChild<QStackedWidget *>(QString(), Qt::FindDirectChildrenOnly);
    TFBaseView *view = TFViewFactory::create(TFMainView::viewKind(data), id, data, stack, false);
    if (!view)
        return;
    if (!m_childState.contains(view->viewId())) {
        delete view;
        return;
    }
    addTab(view);
    m_childState.insert(id, true);
    setSizes(kSizesWithChildren);
    if (!areChildrenReady())
        return;
    // The main table waits for its tabs, so that its first row can fill them. The empty pair has it ask the
    // page for the block filter.
    m_mainView->load({});
}

void TFRightContainer::addTab(TFBaseView *view)
{
    const QString caption = view->caption();
    const int index = m_tabs->addTab(view, tabText(caption));
    m_tabs->setTabToolTip(index, caption);
}

bool TFRightContainer::areChildrenReady() const
{
    return !m_childState.isEmpty() &&
           std::all_of(m_childState.begin(), m_childState.end(), [](bool isReady) { return isReady; });
}

void TFRightContainer::slotMainTableItemRowClicked(RowData values, bool isClicked)
{
    for (int i = 0; i < m_tabs->count(); ++i) {
        auto *view = qobject_cast<TFBaseView *>(m_tabs->widget(i));
        if (view && !takesMainRows(view, isClicked))
            requestChildRows(i, view, values);
    }
}

bool TFRightContainer::takesMainRows(TFBaseView *view, bool isClicked)
{
    const auto *chart = qobject_cast<ITFChartView *>(view);
    if (!chart || chart->isChartData())
        return false;
    if (!isClicked) {
        view->clear();
        updateChartUseMainTableData(view->viewId());
    }
    return true;
}

void TFRightContainer::requestChildRows(int index, TFBaseView *view, const RowData &row)
{
    const QString linkText = m_mainView->childLinkText(view->viewId());
    qCDebug(lcPage) << "--slotMainTableItemRowClicked----------->filter:" << linkText;
    qCDebug(lcPage) << "----------------------------------------------";
    view->setChildFilters(m_mainView->cntrls(), row, linkText);
    view->clear();
    view->startLoading();

    const int flag = view->isCross() ? kWholeSetFlag : kRowsFlag;
    const bool noPaging = view->isCross() || view->viewKind() == TFBaseView::ChartView;
    const TFUc::TFRequestContent content = TFUc::viewRequest(view->viewId(), flag, view->requestParameters(),
                                                             view->filters(), {noPaging, 1, kChildPageSize});
    m_dm->startRequest(
        content, [this, index, view = QPointer<TFBaseView>(view), flag](bool isOk, const QByteArray &data) {
            takeChildRows(index, view, flag, isOk, data);
        });
}

void TFRightContainer::takeChildRows(int index, TFBaseView *asked, int flag, bool isOk,
                                     const QByteArray &data)
{
    if (!isOk)
        return;
    auto *view = qobject_cast<TFBaseView *>(m_tabs->widget(index));
    if (view && view->takeReply(data, flag))
        view->finished();
    else if (asked)
        asked->noData();
}

void TFRightContainer::updateChartUseMainTableData(qlonglong chartId)
{
    TFBaseView *view = m_mainView->currentView();
    for (int i = 0; (!view || view->viewId() != chartId) && i < m_tabs->count(); ++i)
        view = qobject_cast<TFBaseView *>(m_tabs->widget(i));
    if (!view || view->viewId() != chartId)
        return;
    if (auto *chart = qobject_cast<ITFChartView *>(view))
        chart->setRows(m_mainView->allRows());
}

void TFRightContainer::updateChildren()
{
    if (m_tabs->count() > 0)
        slotMainTableItemRowClicked(m_mainView->firstRow(), false);
}

void TFRightContainer::clearChildren()
{
    for (int i = 0; i < m_tabs->count(); ++i) {
        if (auto *view = qobject_cast<TFBaseView *>(m_tabs->widget(i)))
            view->clear();
    }
}

void TFRightContainer::slotHideTab(bool checked)
{
    const int barHeight = m_tabs->tabBar()->height();
    if (checked) {
        m_tabHeight = m_tabs->height();
        m_tabs->setMinimumHeight(0);
        m_tabs->setMaximumHeight(barHeight);
    } else {
        m_tabHeight = kOpenTabBars * barHeight;
        m_tabs->setMinimumHeight(m_tabHeight);
        m_tabs->setMaximumHeight(QWIDGETSIZE_MAX);
    }
}

void TFRightContainer::setMainViewVisible(bool visible)
{
    m_mainView->setVisible(visible);
    applySplitterRule();
}

void TFRightContainer::setChildViewsVisible(bool visible)
{
    m_childViewsVisible = visible;
    m_tabs->setVisible(visible && !m_childState.isEmpty());
    applySplitterRule();
}

bool TFRightContainer::isMainViewVisible() const
{
    return !m_mainView->isHidden();
}

void TFRightContainer::applySplitterRule()
{
    setSizes({isMainViewVisible() ? height() : 1, m_childViewsVisible ? height() : 1});
}
