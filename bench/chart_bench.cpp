// From the rows of a data set to the text of the message that a chart page draws, against writing the same
// message as text and nothing else.

#include "comparison.h"
#include "echarts/tfchartdatamessage.h"
#include "echarts/tfchartdataseries.h"

#include <QCoreApplication>
#include <QJsonDocument>

namespace {
constexpr int SeriesCount = 20;
constexpr int Points = 1000;
constexpr int Rounds = 25;
constexpr double Goal = 1.3;

TFChartData::Config makeConfig()
{
    TFChartData::Config config;
    config.XFieldName = QStringLiteral("DAY");
    config.XValueType = QStringLiteral("String");
    for (int series = 0; series < SeriesCount; ++series) {
        TFChartData::SeriesConfig entry;
        entry.FieldName = QStringLiteral("FIELD_NAME_%1").arg(series, 2, 10, QLatin1Char('0'));
        entry.LegendLable = QStringLiteral("series %1").arg(series);
        entry.ChartType = QStringLiteral("Line");
        entry.IsVisible = true;
        config.ChartDataConfigs.append(entry);
    }
    return config;
}

TFChartData::Rows makeRows(const TFChartData::Config &config)
{
    TFChartData::Rows rows;
    for (int point = 0; point < Points; ++point) {
        QVariantMap row{{config.XFieldName, QStringLiteral("day %1").arg(point)}};
        for (int series = 0; series < SeriesCount; ++series)
            row.insert(config.ChartDataConfigs.at(series).FieldName, point * 1.2347 + series);
        rows.append(row);
    }
    return rows;
}

QByteArray message(const TFChartData::Rows &rows, const TFChartData::Config &config)
{
    TFChartData::ChartSet set;
    TFChartData::buildSeries(set, rows, config, TFChartData::DateLabels::Always);
    return TFChartData::mixedMessage(set, config);
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const TFChartData::Config config = makeConfig();
    const TFChartData::Rows rows = makeRows(config);
    const QJsonDocument document = QJsonDocument::fromJson(message(rows, config));
    Bench::compare(
        {QStringLiteral("rows to the message of a chart, %1 series x %2").arg(SeriesCount).arg(Points),
         QStringLiteral("QJsonDocument::toJson"), Goal},
        Rounds, [&] { document.toJson(QJsonDocument::Compact); }, [&] { message(rows, config); });
    return 0;
}
