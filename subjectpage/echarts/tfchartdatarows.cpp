#include "tfchartdatarows.h"

#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>

namespace {
using namespace TFChartData;

constexpr QLatin1String kDateTimeAxis("DateTime");
constexpr QLatin1String kTextAxis("String");
constexpr QLatin1String kGroupMark("__");
constexpr int kAscending = 1;

struct SortKey
{
    QString field;
    bool isAscending = false;
};

bool staysAsItIs(const Config &config, const ViewTraits &view)
{
    if (config.IsSwitchXAxis || (view.isOrder && view.isGetChartData))
        return true;
    return !view.isOrder && config.XValueType == kTextAxis && !config.IsTurnXAxis;
}

SortKey sortKey(const Config &config, const ViewTraits &view)
{
    SortKey key{config.XFieldName, view.isGetChartData && config.XValueType == kDateTimeAxis};
    const QJsonObject order = view.order.second.toJsonObject();
    if (view.isOrder && !view.order.first.isNull() && !order.isEmpty())
        key = {order.constBegin().key(), order.constBegin().value().toInt() == kAscending};
    return key;
}

bool isLess(const QVariant &left, const QVariant &right)
{
    // The order between two variants is the toolkit's own, deprecated without a successor in this version.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return left < right;
    QT_WARNING_POP
}

/// Appends to \a entries the columns of \a field that a cross table has under \a keys.
void appendGroups(QList<SeriesConfig> &entries, SeriesConfig entry, const QStringList &keys)
{
    const QString pattern = kGroupMark + entry.FieldName;
    const QString legend = entry.LegendLable;
    for (const QString &key : keys) {
        if (key.endsWith(pattern)) {
            entry.LegendLable = key.left(key.indexOf(kGroupMark)) + legend;
            entry.FieldName = key;
        } else if (key != entry.FieldName) {
            continue;
        }
        entries.append(entry);
    }
}
} // namespace

Rows TFChartData::selectRows(const Rows &rows, const Config &config)
{
    const int step = config.XDisplayStep;
    if (rows.size() <= 1 || config.XDisplayDataPattern == AllRows)
        return rows;
    if (step <= 0)
        return {};
    if (step >= rows.size())
        return rows;
    Rows selected;
    switch (config.XDisplayDataPattern) {
    case FirstRows:
        return rows.mid(0, step);
    case EveryNthRow:
        for (int i = step - 1; i < rows.size(); i += step)
            selected.append(rows.at(i));
        return selected;
    case LastRows:
        return rows.mid(rows.size() - step);
    default:
        return {};
    }
}

Rows TFChartData::orderRows(const Rows &rows, const Config &config, const ViewTraits &view)
{
    if (staysAsItIs(config, view))
        return rows;
    const SortKey key = sortKey(config, view);
    Rows sorted = rows;
    // Values of mixed types have no consistent order; the stable sort stays within its bounds all the same.
    std::stable_sort(sorted.begin(), sorted.end(), [&key](const QVariantMap &a, const QVariantMap &b) {
        const QVariant left = a.value(key.field);
        const QVariant right = b.value(key.field);
        return key.isAscending ? isLess(left, right) : isLess(right, left);
    });
    return sorted;
}

Config TFChartData::expandCross(const Rows &rows, const Config &config)
{
    if (rows.isEmpty() || rows.first().isEmpty())
        return config;
    const QStringList keys = rows.first().keys();
    Config expanded = config;
    expanded.ChartDataConfigs.clear();
    for (const SeriesConfig &entry : config.ChartDataConfigs)
        appendGroups(expanded.ChartDataConfigs, entry, keys);
    return expanded;
}
