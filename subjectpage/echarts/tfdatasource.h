#pragma once

#include "records/filterparam.h"
#include "records/tftablemodeldata.h"
#include "tfchartdata.h"

#include <QByteArray>
#include <QObject>

#include <map>
#include <memory>

class QJsonObject;
class QJsonValue;
class TFBaseJsonTable;
class TFViewConfigTable;

/// Turns the configuration of a chart view and the rows of a data set into the message that the chart page
/// draws. The page sees this object as "chartManager".
///
/// Series and labels are made whenever configuration or rows arrive; slotRefreshChartDaTa() sends them.
/// Nothing is reported: a table that is missing or wrong leaves an empty chart.
class TFDataSource : public QObject
{
    Q_OBJECT

public:
    explicit TFDataSource(QObject *parent = nullptr);
    ~TFDataSource() override;

    /// Takes \a json in place of all tables that there were. Series that there were stay before the new ones.
    void loadConfig(const QJsonValue &json);
    /// Takes the tables that \a json has in place of those of the same kind, and makes the series anew.
    void loadConfigAndData(const QJsonValue &json);
    /// Makes the series anew from \a rows.
    void setRows(const TFChartData::Rows &rows);
    /// Drops rows, series and labels.
    void clear();

    bool hasSeries() const { return !m_set.series.isEmpty(); }
    QString caption() const;
    bool isCross() const;
    bool isFilterShown() const;
    /// Whether the view fetches rows of its own; also true without a configuration.
    bool isGetChartData() const;
    /// The pair "order" and a JSON object of field name to 1 or -1, or a null pair.
    FilterParam::DataSourceFilter order() const;
    QList<TFTableModelData::FilterData> filterList() const;
    /// What the next message is made of.
    const TFChartData::ChartSet &chartSet() const { return m_set; }
    /// Field of the X axis.
    QString xField() const { return m_chart.XFieldName; }
    /// The last message that went to the page; empty before the first and after a clear.
    QByteArray lastMessage() const { return m_lastMessage; }
    /// Whether the last chart is a pie.
    bool isPie() const;
    /// Messages and clears sent so far.
    int sentCount() const { return m_sentCount; }
    QByteArray theme() const { return m_theme; }
    /// Whether the filter control of the field \a name feeds a top-level key of the request.
    bool isFilterLive(const QString &name) const;

signals:
    void signalMixedChartData(QByteArray message);
    void signalPieData(QByteArray message);
    void signalChangeTheme(QByteArray theme);
    void signalCanShowChart();
    void signalSaveImage(QString path);
    void signalCopyImage();
    void signalPrintImage();
    void signalClear();

public slots:
    /// The page has connected to this object.
    void slotWebConnectFinished();
    /// Sends the message of the current series.
    void slotRefreshChartDaTa();
    void slotChangedTheme(QByteArray theme);
    // These three wait until the context menu is gone, so that it is not in the picture.
    void saveImage();
    void copyImage();
    void printImage();
    void slotAlert(QString text);

private:
    void recordSent(const QByteArray &message);
    void readTables(const QJsonObject &object);
    template <typename Table> Table *table(int id) const;
    TFViewConfigTable *viewConfig() const;
    TFChartData::Rows rows() const;
    TFChartViewJsonTable *chartTable() const;
    TFChartData::Config takeConfig();
    void orderAndBuild();
    void build(TFChartData::ChartSet &set, const TFChartData::Rows &rows,
               const TFChartData::Config &config) const;

    QByteArray m_lastMessage;
    QByteArray m_theme;
    int m_sentCount = 0;
    std::map<int, std::unique_ptr<TFBaseJsonTable>> m_tables; ///< by TFTableId
    TFChartData::ChartSet m_set;
    TFChartData::Config m_chart; ///< of the last chart table, without its series
};
