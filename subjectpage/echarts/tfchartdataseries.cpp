#include "tfchartdataseries.h"

#include <QDateTime>
#include <QRegExp>

#include <algorithm>

namespace {
using namespace TFChartData;

constexpr QLatin1String kPie("pie");
constexpr QLatin1String kRightAxis("Right");
constexpr QLatin1String kDateTimeAxis("DateTime");
const QString kDefaultDateFormat = QStringLiteral("yyyy/M/d");
const QString kDecimalsPattern = QStringLiteral("^([n,N])(\\d)$");
const QString kReferencePattern = QStringLiteral("\\$\\{(.*)\\}");
const QString kReference = QStringLiteral("${%1}");
constexpr int kDefaultDecimals = 2;
constexpr int kNoCategory = 0;
constexpr int kAnyCategory = -1;

double withDecimals(double value, int decimals)
{
    return QString::number(value, 'f', decimals).toDouble();
}

bool isScaled(const SeriesConfig &entry)
{
    return entry.UnitCategory != kNoCategory && entry.UnitCategory != kAnyCategory &&
           entry.ShowUnitFactor != 0;
}

/// The point of \a entry in \a row. A scaled one is read from \a scaledField.
double dataPoint(const QVariantMap &row, const SeriesConfig &entry, const QString &scaledField)
{
    const bool scaled = isScaled(entry);
    double value = row.value(scaled ? scaledField : entry.FieldName).toDouble();
    if (scaled)
        value = value * double(entry.PrevUnitFactor) / entry.ShowUnitFactor;
    return roundedValue(value, entry.ValueFormatString);
}

ChartSeries describedSeries(const SeriesConfig &entry)
{
    ChartSeries series;
    series.name = entry.LegendLable;
    if (!entry.ShowUnit.isEmpty())
        series.name += QLatin1Char('(') + entry.ShowUnit + QLatin1Char(')');
    series.visible = entry.IsVisible;
    series.chartType = entry.ChartType;
    series.valueFormat = entry.ValueFormatString;
    series.stackGroup = entry.SetStackGroup;
    series.yAxisSide = entry.YShaftType == kRightAxis ? 1 : 0;
    return series;
}

QString filledName(QString name, const QVariantMap &row)
{
    if (!name.contains(QLatin1String("${")))
        return name;
    QRegExp pattern(kReferencePattern);
    pattern.setMinimal(true);
    QStringList references;
    for (int at = 0; (at = pattern.indexIn(name, at)) >= 0; at += pattern.matchedLength())
        references.append(pattern.cap(1));
    for (const QString &reference : qAsConst(references))
        name.replace(kReference.arg(reference), row.value(reference).toString());
    return name;
}

bool hasText(const QStringList &texts)
{
    return std::any_of(texts.begin(), texts.end(), [](const QString &text) { return !text.isEmpty(); });
}

template <typename List, typename Value> void put(List &list, const Value &value, bool isInFront)
{
    if (isInFront)
        list.prepend(value);
    else
        list.append(value);
}

/// One run of the builder over one set of rows.
class Builder
{
public:
    Builder(ChartSet &set, const Rows &rows, const Config &config, DateLabels dateLabels)
        : m_set(set)
        , m_rows(rows)
        , m_config(config)
        , m_dateLabels(dateLabels)
    {}

    void buildColumns();
    void buildRows();
    void buildPivotPie();

private:
    QString axisText(const QVariantMap &row) const { return row.value(m_config.XFieldName).toString(); }
    QString label(const QVariantMap &row) const;
    bool addLabels(ChartSeries &first);

    ChartSet &m_set;
    const Rows &m_rows;
    const Config &m_config;
    DateLabels m_dateLabels;
};

QString Builder::label(const QVariantMap &row) const
{
    if (m_config.XValueType != kDateTimeAxis)
        return axisText(row);
    bool isInteger = false;
    const qint64 milliseconds = row.value(m_config.XFieldName).toLongLong(&isInteger);
    if (m_dateLabels == DateLabels::WhereIntegers && !isInteger)
        return axisText(row);
    const QString &format = m_config.XItemNamesFormat;
    return QDateTime::fromMSecsSinceEpoch(milliseconds)
        .toString(format.isEmpty() ? kDefaultDateFormat : format);
}

/// Makes the labels; the first series alone has the references in its name filled. False without any text.
bool Builder::addLabels(ChartSeries &first)
{
    bool isAnyText = false;
    for (const QVariantMap &row : m_rows) {
        isAnyText = isAnyText || !axisText(row).isEmpty();
        put(m_set.labels, label(row), m_config.IsTurnXAxis);
        first.name = filledName(first.name, row);
    }
    return isAnyText;
}

void Builder::buildColumns()
{
    int index = 0;
    for (const SeriesConfig &entry : m_config.ChartDataConfigs) {
        ChartSeries series = describedSeries(entry);
        series.index = index++;
        series.xName = m_config.XFieldName;
        if (series.index == 0 && !addLabels(series)) {
            m_set.labels.clear();
            return;
        }
        for (const QVariantMap &row : m_rows)
            put(series.values, dataPoint(row, entry, entry.FieldName), m_config.IsTurnXAxis);
        series.xLabels = m_set.labels;
        m_set.series.append(series);
    }
}

void Builder::buildRows()
{
    if (m_config.ChartDataConfigs.isEmpty())
        return;
    const SeriesConfig &first = m_config.ChartDataConfigs.first();
    int index = 0;
    for (const QVariantMap &row : m_rows) {
        ChartSeries series = describedSeries(first);
        series.index = index++;
        series.xName = first.LegendLable;
        series.name = axisText(row);
        series.stackGroup = 0;
        series.valueFormat.clear();
        QStringList names;
        for (const SeriesConfig &entry : m_config.ChartDataConfigs) {
            series.values.append(dataPoint(row, entry, first.FieldName));
            names.append(entry.LegendLable);
        }
        m_set.labels = names;
        series.xLabels = names;
        m_set.series.append(series);
    }
}

void Builder::buildPivotPie()
{
    int index = 0;
    for (const QVariantMap &row : m_rows) {
        for (const SeriesConfig &entry : m_config.ChartDataConfigs) {
            ChartSeries series = describedSeries(entry);
            series.index = index++;
            series.xName = axisText(row);
            series.values.append(dataPoint(row, entry, entry.FieldName));
            series.xLabels = m_set.labels;
            m_set.series.append(series);
        }
        m_set.labels.append(axisText(row));
    }
    if (!hasText(m_set.labels))
        m_set.labels.clear();
}
} // namespace

bool TFChartData::isPie(const Config &config)
{
    return config.ChartType.toLower() == kPie;
}

double TFChartData::roundedValue(double value, const QString &format)
{
    if (format.isEmpty()) {
        const bool hasFraction = QString::number(value).contains(QLatin1Char('.'));
        return hasFraction ? withDecimals(value, kDefaultDecimals) : value;
    }
    QRegExp pattern(kDecimalsPattern);
    return pattern.indexIn(format) < 0 ? value : withDecimals(value, pattern.cap(2).toInt());
}

void TFChartData::buildSeries(ChartSet &set, const Rows &rows, const Config &config, DateLabels dateLabels)
{
    Builder builder(set, rows, config, dateLabels);
    if (!config.IsSwitchXAxis)
        builder.buildColumns();
    else if (isPie(config))
        builder.buildPivotPie();
    else
        builder.buildRows();
}
