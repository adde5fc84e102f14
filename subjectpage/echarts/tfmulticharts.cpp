#include "tfmulticharts.h"

#include "filterwidget/tffilterwidget.h"
#include "net/tfdm.h"
#include "previewpage.h"
#include "records/tfancestors.h"
#include "records/tfcategories.h"
#include "tfchartprint.h"
#include "tfcore/tfcore.h"
#include "tfcore/tfwebprocesses.h"

#include <QClipboard>
#include <QDateTime>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QPrintDialog>
#include <QPrinter>
#include <QWebChannel>
#include <QWebEngineSettings>
#include <QWebEngineView>

namespace {
const char kMainFrameClass[] = "TFSubjectMainFrame";
const QString kPage = QStringLiteral("qrc:/chart/web/html/index.html");
const QString kChannelName = QStringLiteral("chartManager");
constexpr QLatin1String kThemeKey("theme");
constexpr int kChartPageSize = 200;
constexpr QSize kStartSize(669, 295);

struct Skin
{
    QString theme;
    QString background; ///< empty for none
};

Skin skinOf(const QString &name)
{
    const QString lower = name.toLower();
    if (lower == QLatin1String("white") || lower == QLatin1String("default"))
        return {QStringLiteral("white"), QStringLiteral("#FFFFFF")};
    if (lower == QLatin1String("black"))
        return {name, QStringLiteral("#080B10")};
    if (lower == QLatin1String("mid"))
        return {QStringLiteral("black"), QString()};
    return {name, QString()};
}
} // namespace

/// The resources lie in a static library. Resource macros need the global namespace.
static void initResources()
{
    Q_INIT_RESOURCE(chart);
}

TFMultiCharts::TFMultiCharts(QWidget *parent)
    : TFBaseView(parent)
    , m_layout(new QHBoxLayout(this))
    , m_filterBar(new TFFilterWidget(this))
{
    initResources();
    if (objectName().isEmpty())
        setObjectName(QStringLiteral("TFMultiCharts"));
    resize(kStartSize);
    setWindowTitle(QCoreApplication::translate("TFMultiCharts", "WXMultiCharts"));
    QMetaObject::connectSlotsByName(this);

    m_filterBar->setObjectName(QStringLiteral("filterWidget"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_filterBar);
    createPage();
    createConnections();
    slotChangeSkin(TFCore::instance()->getCurrentSkinId());
}

TFMultiCharts::~TFMultiCharts()
{
    delete m_channel;
    delete m_webView;
}

void TFMultiCharts::createPage()
{
    TFWebProcesses::shareBySite();
    m_page = new PreviewPage(this);
    m_webView = new QWebEngineView(this);
    m_webView->setPage(m_page);
    connect(&m_dataSource, &TFDataSource::signalCanShowChart, this, &TFMultiCharts::slotShowChart);

    QWebEngineSettings *settings = QWebEngineSettings::globalSettings();
    settings->setAttribute(QWebEngineSettings::PluginsEnabled, true);
    settings->setAttribute(QWebEngineSettings::JavascriptEnabled, true);
    // Texts whose own font is missing are written in that of the window.
    settings->setFontFamily(QWebEngineSettings::StandardFont, QGuiApplication::font().family());

    m_channel = new QWebChannel(m_page);
    m_channel->registerObject(kChannelName, &m_dataSource);
    m_page->setWebChannel(m_channel);
    m_page->setUrl(QUrl(kPage));
    m_layout->addWidget(m_webView);
    m_webView->show();
}

void TFMultiCharts::createConnections()
{
    connect(TFCore::instance(), &TFCore::signalSkinChanged, this, &TFMultiCharts::slotChangeSkin);
    connect(&m_dataSource, &TFDataSource::signalSaveImage, this, &TFMultiCharts::slotSaveImage);
    connect(&m_dataSource, &TFDataSource::signalCopyImage, this, &TFMultiCharts::slotCopyImage);
    connect(&m_dataSource, &TFDataSource::signalPrintImage, this, &TFMultiCharts::slotPrintPng);
}

void TFMultiCharts::slotShowChart()
{
    slotChangeSkin(TFCore::instance()->getCurrentSkinId());
    if (m_dataSource.hasSeries())
        m_dataSource.slotRefreshChartDaTa();
    m_isPageReady = true;
}

void TFMultiCharts::slotChangeSkin(QString skinStr)
{
    qCDebug(lcChart) << "skin changed-------->" << skinStr;
    const Skin skin = skinOf(skinStr);
    m_page->setBackgroundColor(QColor(skin.background));
    const QJsonObject message{{kThemeKey, skin.theme}};
    m_dataSource.slotChangedTheme(QJsonDocument(message).toJson(QJsonDocument::Compact));
}

void TFMultiCharts::refreshIfReady()
{
    if (m_isPageReady)
        m_dataSource.slotRefreshChartDaTa();
}

void TFMultiCharts::clear()
{
    m_dataSource.clear();
}

bool TFMultiCharts::parseConfig(const QJsonValue &config, bool)
{
    m_dataSource.loadConfig(config);
    m_filterBar->setVisible(m_dataSource.isFilterShown());
    m_filterBar->setFilterData(m_dataSource.filterList());
    return true;
}

bool TFMultiCharts::handleReply(const QJsonValue &json, const QString &, int)
{
    m_dataSource.loadConfigAndData(json);
    refreshIfReady();
    return true;
}

void TFMultiCharts::setRows(const QList<QVariantMap> &rows)
{
    m_dataSource.setRows(rows);
    refreshIfReady();
}

bool TFMultiCharts::isChartData() const
{
    return m_dataSource.isGetChartData();
}

bool TFMultiCharts::isFilterLive(const QString &name)
{
    return m_dataSource.isFilterLive(name);
}

void TFMultiCharts::setFilterArguments(const QMap<QString, QVariant> &arguments)
{
    m_filterBar->setDynamicArgs(arguments);
}

FilterParam::DataSourceFilter TFMultiCharts::order() const
{
    return m_dataSource.order();
}

QList<FilterParam::Cntrl> TFMultiCharts::cntrls() const
{
    return m_filterBar->getCntrls();
}

QList<TFTableModelData::FilterData> TFMultiCharts::filterList() const
{
    return m_dataSource.filterList();
}

int TFMultiCharts::viewKind() const
{
    return ChartView;
}

QString TFMultiCharts::caption() const
{
    return m_dataSource.caption();
}

bool TFMultiCharts::isCross() const
{
    return m_dataSource.isCross();
}

void TFMultiCharts::updateFilters()
{
    QList<FilterParam::DataSourceFilter> parameters;
    QList<FilterParam::CustomFilter> filters;
    m_filterBar->finalFilter(parameters, filters);
    if (const auto *page = TFAncestors::find<ITFPageContext>(this, kMainFrameClass))
        parameters.append(page->blockFilter());
    parameters.append(order());
    setParameters(parameters);
    setFilters(filters);
}

void TFMultiCharts::requestData()
{
    if (!m_dm)
        m_dm = std::make_unique<TFDm>(this);
    updateFilters();
    const TFUc::TFRequestContent content =
        isCross()
            ? TFUc::wholeDataRequest(viewId(), requestParameters(), filters())
            : TFUc::viewDataRequest(viewId(), requestParameters(), filters(), {true, 1, kChartPageSize});
    m_dm->startRequest(content, [this, id = viewId()](bool isOk, const QByteArray &data) {
        // The rows of a page that was left would be drawn with the settings of this one.
        if (isOk && id == viewId())
            takeReply(data, 0);
    });
}

QString TFMultiCharts::slotSaveImage(QString tmppath)
{
    QString target;
    if (tmppath.isEmpty()) {
        const QString name = caption().replace(QLatin1Char('/'), QLatin1Char('-'));
        target = QFileDialog::getSaveFileName(nullptr, QStringLiteral("保存"), name,
                                              QStringLiteral("Images (*.png);;Images (*.jpg)"));
        if (target.isEmpty())
            return {};
    } else {
        target = tmppath + QStringLiteral("_%1.png").arg(
                               QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmss")));
    }
    if (!grab().save(target))
        qCWarning(lcChart) << "can't save the picture of the chart as" << target;
    return target;
}

void TFMultiCharts::slotCopyImage()
{
    const QImage image(slotSaveImage());
    QGuiApplication::clipboard()->setImage(image);
}

void TFMultiCharts::slotPrintPng()
{
    QPrinter chosen(QPrinter::ScreenResolution);
    if (chosen.printerName().isEmpty())
        return;
    QPrintDialog dialog(&chosen, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QImage image(slotSaveImage());
    // The picture goes to the default printer, whatever was chosen.
    QPrinter printer(QPrinter::ScreenResolution);
    TFChartPrint::paint(printer, image);
}
