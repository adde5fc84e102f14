#include "tfchartdataseries.h"

#include "records/tfrounding.h"

#include <QDateTime>
#include <QRegExp>

#include <algorithm>

namespace {
using namespace TFChartData;

constexpr QLatin1String kPie("pie");
constexpr QLatin1String kRightAxis("Right");
constexpr QLatin1String kDateTimeAxis("DateTime");
const QString kDefaultDateFormat = QStringLiteral("yyyy/M/d");
constexpr QLatin1String kDecimalsLetters("n,N");
const QString kReferencePattern = QStringLiteral("\\$\\{(.*)\\}");
const QString kReference = QStringLiteral("${%1}");
constexpr int kDefaultDecimals = 2;
constexpr int kNoCategory = 0;
constexpr int kAnyCategory = -1;

/// How the points of a series are rounded: "N", "n" or "," and one digit gives the decimals.
class Rounding
{
public:
    explicit Rounding(const QString &format)
    {
        if (format.isEmpty()) {
            m_kind = WhereFraction;
            m_decimals = kDefaultDecimals;
            return;
        }
        if (format.size() == 2 && kDecimalsLetters.contains(format.at(0)) && format.at(1).isDigit()) {
            m_kind = Always;
            m_decimals = format.at(1).digitValue();
        }
    }

    double operator()(double value) const
    {
        const bool isRounded =
            m_kind == Always || (m_kind == WhereFraction && TFRounding::showsFraction(value));
        return isRounded ? TFRounding::toDecimals(value, m_decimals) : value;
    }

private:
    enum Kind { Never, WhereFraction, Always };

    Kind m_kind = Never;
    int m_decimals = 0;
};

bool isScaled(const SeriesConfig &entry)
{
    return entry.UnitCategory != kNoCategory && entry.UnitCategory != kAnyCategory &&
           entry.ShowUnitFactor != 0;
}

double number(const QVariantMap &row, const QString &field)
{
    const auto value = row.constFind(field);
    return value == row.constEnd() ? 0.0 : value->toDouble();
}

/// The points of one entry of the chart, row by row. Scaled ones are read from \a scaledField.
class PointReader
{
public:
    PointReader(const SeriesConfig &entry, const QString &scaledField)
        : m_entry(entry)
        , m_isScaled(isScaled(entry))
        , m_field(m_isScaled ? scaledField : entry.FieldName)
        , m_rounding(entry.ValueFormatString)
    {}

    double operator()(const QVariantMap &row) const
    {
        const double value = number(row, m_field);
        return m_rounding(m_isScaled ? value * double(m_entry.PrevUnitFactor) / m_entry.ShowUnitFactor
                                     : value);
    }

private:
    const SeriesConfig &m_entry;
    const bool m_isScaled;
    const QString &m_field;
    const Rounding m_rounding;
};

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
        const PointReader point(entry, entry.FieldName);
        for (const QVariantMap &row : m_rows)
            series.values.append(point(row));
        if (m_config.IsTurnXAxis)
            std::reverse(series.values.begin(), series.values.end());
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
            series.values.append(PointReader(entry, first.FieldName)(row));
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
            series.values.append(PointReader(entry, entry.FieldName)(row));
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
    return Rounding(format)(value);
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
