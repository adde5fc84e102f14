#pragma once

#include "echarts/tfchartdata.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// Charts in tests are written as JSON with single quotes.
namespace ChartJson {

inline QJsonDocument parse(QString text)
{
    return QJsonDocument::fromJson(text.replace('\'', '"').toUtf8());
}

inline QString compact(const QJsonValue &value)
{
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact)).replace('"', '\'');
}

inline TFChartData::Rows rows(const QString &text)
{
    TFChartData::Rows rows;
    const QJsonArray array = parse(text).array();
    for (const QJsonValue &row : array)
        rows.append(row.toObject().toVariantMap());
    return rows;
}

/// A series without "IsVisible" is visible here.
inline TFChartData::Config config(const QString &text)
{
    QJsonObject chart = parse(text).object();
    QJsonArray series;
    const QJsonArray given = chart.value("ChartDataConfigs").toArray();
    for (const QJsonValue &element : given) {
        QJsonObject object = element.toObject();
        if (!object.contains("IsVisible"))
            object.insert("IsVisible", true);
        series.append(object);
    }
    chart.insert("ChartDataConfigs", series);
    TFChartViewJsonTable table;
    table.initWith(QString::fromUtf8(QJsonDocument(chart).toJson()));
    return table.config();
}

/// "a b c: S 1 2 3 | T 4 5 6", the labels and then each series with its points.
inline QString text(const TFChartData::ChartSet &set)
{
    QStringList lines;
    for (const TFChartData::ChartSeries &series : set.series) {
        QStringList words{series.name};
        for (double value : series.values)
            words << QString::number(value, 'g', 12);
        lines << words.join(' ');
    }
    return set.labels.join(' ') + ": " + lines.join(" | ");
}

} // namespace ChartJson
