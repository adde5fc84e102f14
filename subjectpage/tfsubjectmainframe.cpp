#include "tfsubjectmainframe.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMovie>
#include <QResizeEvent>
#include <QSplitter>
#include <QStackedWidget>

#include "filterwidget/tfcacheconfig.h"
#include "net/tfdm.h"
#include "net/tfjsp.h"
#include "net/tfuc.h"
#include "records/tfcategories.h"
#include "tfcore/tfcore.h"
#include "tfcore/tfwebview.h"
#include "tfmenucfg.h"
#include "tfrightcontainer.h"
#include "tftreewidgetcontainer.h"

namespace {
constexpr int stockTopic = 2;
constexpr int stockSecurityType = 10;

constexpr int leastTreeWidth = 160;

/// Places in the stack on the right.
enum RightPage { DataPage = 0, WebPage = 1 };
} // namespace

void TFSubjectMainFrame::InterfaceParts::build(QFrame *frame)
{
    if (frame->objectName().isEmpty())
        frame->setObjectName(QStringLiteral("TFSubjectMainFrame"));
    frame->resize(528, 405);
    gridLayout = new QGridLayout(frame);
    gridLayout->setObjectName(QStringLiteral("gridLayout"));
    gridLayout->setSpacing(1);
    gridLayout->setContentsMargins(1, 1, 1, 1);
    splitter = new QSplitter(Qt::Horizontal, frame);
    splitter->setObjectName(QStringLiteral("splitter"));
    leftContainer = new TFTreeWidgetContainer(splitter);
    leftContainer->setObjectName(QStringLiteral("leftContainer"));
    leftContainer->setMinimumWidth(leastTreeWidth);
    splitter->addWidget(leftContainer);
    rightContainer = new QStackedWidget(splitter);
    rightContainer->setObjectName(QStringLiteral("rightContainer"));
    splitter->addWidget(rightContainer);
    gridLayout->addWidget(splitter, 0, 0);
    frame->setWindowTitle(QCoreApplication::translate("TFSubjectMainFrame", "Frame"));
    QMetaObject::connectSlotsByName(frame);
}

TFSubjectMainFrame::TFSubjectMainFrame(QWidget *parent)
    : QFrame(parent)
    , m_loadingLabel(new QLabel(this))
    , m_dm(std::make_unique<TFDm>(this))
{
    m_loadingLabel->hide();
    m_ui.build(this);
    m_loadingLabel->raise();
}

TFSubjectMainFrame::~TFSubjectMainFrame() = default;

void TFSubjectMainFrame::setCaption(const QString &caption)
{
    m_caption = caption;
}

void TFSubjectMainFrame::setNodeCode(const QString &nodeCode)
{
    m_nodeCode = nodeCode;
}

void TFSubjectMainFrame::setObjVwId(const QString &objVwId)
{
    m_objVwId = objVwId;
}

void TFSubjectMainFrame::setPNodeCode(int pNodeCode)
{
    m_pNodeCode = pNodeCode;
}

void TFSubjectMainFrame::setF9Arguments(const QMap<QString, QVariant> &arguments)
{
    if (m_f9Arguments != arguments)
        m_f9Arguments = arguments;
}

FilterParam::DataSourceFilter TFSubjectMainFrame::blockFilter() const
{
    return m_ui.leftContainer->blockFilter();
}

void TFSubjectMainFrame::refresh()
{
    // The replies come through the event loop of this thread, so that they find the right side built.
    if (m_pNodeCode == stockTopic)
        requestBlockRows();
    requestNavigation();
    if (m_rightContainer && m_webView)
        return;
    buildRightSide();
    connectSides();
}

void TFSubjectMainFrame::requestBlockRows()
{
    m_dm->startRequest(TFUc::blockRowsRequest(stockSecurityType), [this](bool isOk, const QByteArray &data) {
        NtResponse response;
        if (isOk && TFJSP::parseResponse(data, response))
            m_ui.leftContainer->loadBlockTree(response.data);
        else
            qCWarning(lcPage) << "no block rows:" << data.left(200);
    });
}

void TFSubjectMainFrame::requestNavigation()
{
    m_dm->startRequest(TFUc::navigationRequest(m_pNodeCode), [this](bool isOk, const QByteArray &data) {
        NtResponse response;
        if (isOk && TFJSP::parseResponse(data, response))
            takeNavigation(response);
        else
            qCWarning(lcPage) << "no navigation for topic" << m_pNodeCode << ":" << data.left(200);
    });
}

void TFSubjectMainFrame::takeNavigation(const NtResponse &navigation)
{
    m_ui.leftContainer->setTitle(m_caption);
    if (!loadMainTree(navigation.data)) {
        qCWarning(lcPage) << "navigation of topic" << m_pNodeCode << "has no rows, its data is"
                          << navigation.data.type();
        return;
    }
    m_ui.leftContainer->loadBlockTree(m_blockValue);
    requestConstants(navigation);
    stopLoadingImage();
}

bool TFSubjectMainFrame::loadMainTree(const QJsonValue &rows)
{
    if (!m_nodeCode.isEmpty())
        return m_ui.leftContainer->loadMainTreeByCode(m_nodeCode, rows, m_pNodeCode, m_caption);
    if (!m_objVwId.isEmpty()) {
        const MenuItem record = TFMenuCfg::instance()->itemOfView(m_objVwId);
        return m_ui.leftContainer->loadMainTreeByName(record, rows, m_pNodeCode, m_caption);
    }
    return true;
}

void TFSubjectMainFrame::requestConstants(const NtResponse &navigation)
{
    // The constants travel in the navigation reply; this reply only opens the way to them.
    m_dm->startRequest(TFUc::constantsRequest(), [rows = navigation.data](bool isOk, const QByteArray &data) {
        NtResponse gate;
        if (isOk && TFJSP::parseResponse(data, gate))
            TFCacheConfig::instance()->fill(rows);
    });
}

void TFSubjectMainFrame::buildRightSide()
{
    m_ui.splitter->setObjectName(QStringLiteral("mainLayout"));
    m_rightContainer = new TFRightContainer(this);
    m_webView = new TFWebView;
    m_webView->init(QUrl(), QVariant(QString()));
    startLoadingImage();

    m_ui.splitter->setChildrenCollapsible(false);
    m_ui.splitter->setHandleWidth(2);
    m_ui.splitter->setContentsMargins(3, 3, 3, 3);
    m_ui.rightContainer->insertWidget(DataPage, m_rightContainer);
    m_ui.rightContainer->insertWidget(WebPage, m_webView);
    m_ui.splitter->setSizes({200, 1200});
    m_ui.gridLayout->setContentsMargins(0, 0, 0, 0);
    m_ui.gridLayout->setSpacing(0);
}

void TFSubjectMainFrame::startLoadingImage()
{
    const QString fileName = TFCore::instance()->getCurrentSkinPath(QStringLiteral("subject/loading.gif"));
    auto *movie = new QMovie(fileName, QByteArray(), m_loadingLabel);
    m_loadingLabel->setMovie(movie);
    m_loadingLabel->resize(32, 32);
    centreLoadingImage();
    movie->start();
    m_loadingLabel->show();
}

void TFSubjectMainFrame::stopLoadingImage()
{
    m_loadingLabel->hide();
    // A hidden image would go on waking the program at every frame.
    if (m_loadingLabel->movie())
        m_loadingLabel->movie()->stop();
}

void TFSubjectMainFrame::connectSides()
{
    connect(m_ui.leftContainer, &TFTreeWidgetContainer::groupChanged, this, &TFSubjectMainFrame::showGroup);
    connect(m_ui.leftContainer, &TFTreeWidgetContainer::signalItemClicked, this,
            &TFSubjectMainFrame::openItem);
    connect(m_rightContainer, qOverload<QString, QString>(&TFRightContainer::sigSectorNumChanged),
            m_ui.leftContainer,
            [left = m_ui.leftContainer](const QString &sectorNum, const QString &rootItem) {
                left->setRootSector(rootItem);
                left->slotSetSector(sectorNum);
            });
}

void TFSubjectMainFrame::openItem(qlonglong objVwId, const QString &title, const QString &url)
{
    if (url.isEmpty()) {
        m_ui.rightContainer->setCurrentIndex(DataPage);
        m_rightContainer->refreshPage(objVwId, title);
    } else {
        m_ui.rightContainer->setCurrentIndex(WebPage);
        m_webView->refresh(QUrl::fromUserInput(url), QVariant());
    }
}

TFWebView *TFSubjectMainFrame::shownWebView() const
{
    return m_webView && m_ui.rightContainer->currentWidget() == m_webView ? m_webView : nullptr;
}

bool TFSubjectMainFrame::isLoading() const
{
    return !m_loadingLabel->isHidden();
}

void TFSubjectMainFrame::showGroup(const QString &text)
{
    setWindowTitle(text.isEmpty() ? m_caption : m_caption + QLatin1Char(':') + text);
}

void TFSubjectMainFrame::centreLoadingImage()
{
    m_loadingLabel->move(int((width() - m_loadingLabel->width()) * 0.5),
                         int((height() - m_loadingLabel->height()) * 0.5));
}

void TFSubjectMainFrame::resizeEvent(QResizeEvent *event)
{
    if (event->size().isValid())
        centreLoadingImage();
    QFrame::resizeEvent(event);
}
