#pragma once

#include "tfbaseview.h"
#include "tfchartview.h"
#include "tfdatasource.h"

#include <QStandardPaths>

#include <memory>

class QHBoxLayout;
class QWebChannel;
class QWebEngineView;
class PreviewPage;
class TFDm;
class TFFilterWidget;

/// A view that shows a chart: a filter bar where the configuration asks for one, and a web view with a page
/// of the resources that draws what TFDataSource sends.
///
/// Rows that arrive before the page is ready are drawn once it is. Making one starts the web engine.
class TFMultiCharts : public TFBaseView, public ITFChartView
{
    Q_OBJECT
    Q_INTERFACES(ITFChartView)

public:
    explicit TFMultiCharts(QWidget *parent = nullptr);
    ~TFMultiCharts() override;

    bool isPageReady() const { return m_isPageReady; }
    QWebEngineView *webView() const { return m_webView; }
    TFFilterWidget *filterBar() const { return m_filterBar; }
    const TFDataSource &dataSource() const { return m_dataSource; }

    bool isChartData() const override;
    void requestData() override;
    void setRows(const QList<QVariantMap> &rows) override;

    void clear() override;
    bool parseConfig(const QJsonValue &config, bool isNew) override;
    bool handleReply(const QJsonValue &json, const QString &spare, int flag) override;
    bool isFilterLive(const QString &name) override;
    void setFilterArguments(const QMap<QString, QVariant> &arguments) override;
    FilterParam::DataSourceFilter order() const override;
    QList<FilterParam::Cntrl> cntrls() const override;
    QList<TFTableModelData::FilterData> filterList() const override;
    int viewKind() const override;
    QString caption() const override;
    bool isCross() const override;

signals:
    void signalGetData();

public slots:
    void slotChangeSkin(QString skinStr);
    /// The page is ready: it gets the skin, and the series that there are.
    void slotShowChart();
    void slotPrintPng();
    /// Saves a picture of the whole view and returns its file name: \a tmppath followed by the time, or with
    /// an empty \a tmppath what the user chooses. Empty where the user chose none.
    QString slotSaveImage(QString tmppath = QStandardPaths::writableLocation(QStandardPaths::TempLocation));
    void slotCopyImage();

private:
    void createPage();
    void createConnections();
    void refreshIfReady();
    void updateFilters();

    TFDataSource m_dataSource;
    QWebEngineView *m_webView;
    QWebChannel *m_channel;
    QHBoxLayout *m_layout;
    bool m_isPageReady = false;
    TFFilterWidget *m_filterBar;
    std::unique_ptr<TFDm> m_dm;
    PreviewPage *m_page;
};
