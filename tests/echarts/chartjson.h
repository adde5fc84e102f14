#pragma once

#include "echarts/tfchartdata.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

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
    TFChartViewJsonTable table;
    table.initWith(QString::fromUtf8(parse(text).toJson()));
    TFChartData::Config config = table.config();
    const QJsonArray series = parse(text)["ChartDataConfigs"].toArray();
    for (int i = 0; i < series.size(); ++i)
        config.ChartDataConfigs[i].IsVisible = series[i]["IsVisible"].toBool(true);
    return config;
}

/// A reply with the configuration of a chart view named "甲/乙", and \a rows unless they are an empty text.
inline QJsonObject document(const QString &chart, const QString &rows = QString(),
                            const QMap<QString, QString> &properties = {})
{
    QJsonArray view{QJsonObject{{"prop_name", "ObjViewType"}, {"prop_val", "ViewDataChart"}},
                    QJsonObject{{"prop_typ", "EXTEND"},
                                {"prop_name", "ChartViewConfig"},
                                {"ext_prop_val", QString::fromUtf8(parse(chart).toJson())}}};
    for (auto it = properties.begin(); it != properties.end(); ++it)
        view.append(QJsonObject{{"prop_name", it.key()}, {"prop_val", it.value()}});
    QJsonObject json{{"View_Config", view},
                     {"Object_View", QJsonArray{QJsonObject{{"obj_vw_name", "甲/乙"}}}}};
    if (!rows.isEmpty())
        json.insert("Data", parse(rows).array());
    return json;
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
