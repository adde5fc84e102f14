#include "tfchartdescription.h"

#include "echarts/tfmulticharts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
QJsonValue messageOf(const TFDataSource &source)
{
    if (source.lastMessage().isEmpty())
        return {};
    const QJsonDocument message = QJsonDocument::fromJson(source.lastMessage());
    const QString theme = QJsonDocument::fromJson(source.theme()).object().value("theme").toString();
    return QJsonObject{{"kind", source.isPie() ? "pie" : "mixed"},
                       {"message", message.isNull() ? QJsonValue(QString::fromUtf8(source.lastMessage()))
                                                    : QJsonValue(message.object())},
                       {"sent", source.sentCount()},
                       {"theme", theme}};
}
} // namespace

namespace TFChartDescription {

QJsonObject describe(const TFMultiCharts &chart)
{
    return {{"status", QString()},    {"loading", !chart.isPageReady()},
            {"bands", QJsonArray()},  {"columns", QJsonArray()},
            {"rows", QJsonArray()},   {"groups", QJsonArray()},
            {"paging", QJsonValue()}, {"chart", messageOf(chart.dataSource())}};
}

QString state(const TFMultiCharts &chart)
{
    return chart.dataSource().hasSeries() ? QStringLiteral("shown") : QStringLiteral("noData");
}

} // namespace TFChartDescription
