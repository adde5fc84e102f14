#include "tfchartdatamessage.h"

#include "tfchartdatanumbers.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
using namespace TFChartData;

constexpr QLatin1String kName("name");
constexpr QLatin1String kType("type");
constexpr QLatin1String kData("data");
const QByteArray kDataMark = QByteArrayLiteral("\"data\":null");
const QByteArray kNull = QByteArrayLiteral("null");
constexpr QLatin1String kValue("value");
constexpr QLatin1String kShow("show");
constexpr QLatin1String kSmooth("smooth");
constexpr QLatin1String kAreaStyle("areaStyle");
constexpr QLatin1String kNormal("normal");
constexpr QLatin1String kEmphasis("emphasis");
constexpr QLatin1String kBarGap("barGap");
constexpr QLatin1String kStack("stack");
constexpr QLatin1String kYAxisIndex("yAxisIndex");
constexpr QLatin1String kPosition("position");
constexpr QLatin1String kSplitLine("splitLine");
constexpr QLatin1String kScale("scale");
constexpr QLatin1String kInterval("interval");
constexpr QLatin1String kRotate("rotate");
constexpr QLatin1String kLabel("label");
constexpr QLatin1String kCenter("center");
constexpr QLatin1String kText("text");
constexpr QLatin1String kX("x");
constexpr QLatin1String kY("y");
constexpr QLatin1String kTextAlign("textAlign");
constexpr QLatin1String kTextStyle("textStyle");
constexpr QLatin1String kFontSize("fontSize");
constexpr QLatin1String kFontFamily("fontFamily");
constexpr QLatin1String kFontWeight("fontWeight");
constexpr QLatin1String kXData("xData");
constexpr QLatin1String kXAxisLabel("xAxisLabel");
constexpr QLatin1String kSeries("series");
constexpr QLatin1String kLegend("legend");
constexpr QLatin1String kLegendPosition("legendPostion");
constexpr QLatin1String kYAxis("yAxis");
constexpr QLatin1String kAxisShow("axisShow");
constexpr QLatin1String kTitle("title");

constexpr QLatin1String kBar("bar");
constexpr QLatin1String kLine("line");
constexpr QLatin1String kPie("pie");
constexpr QLatin1String kScatter("scatter");
constexpr QLatin1String kSmoothLine("LineSmoothed");
constexpr QLatin1String kStackedColumns("ColumnStacked");
constexpr QLatin1String kArea("Area");
constexpr QLatin1String kColumn("Column");

const QString kTitleFont = QStringLiteral("微软雅黑");
constexpr int kTitleSize = 12;
constexpr int kTitleWeight = 100;
constexpr int kWholeWidth = 100;

QByteArray compact(const QJsonObject &message)
{
    return QJsonDocument(message).toJson(QJsonDocument::Compact);
}

/// \a text with the values of each visible series in place of its mark. No name can hold the mark: its
/// quotation marks would be escaped.
QByteArray withData(const QByteArray &text, const QList<ChartSeries> &series)
{
    QByteArray filled;
    int from = 0;
    for (const ChartSeries &one : series) {
        if (!one.visible)
            continue;
        const int data = text.indexOf(kDataMark, from) + kDataMark.size() - kNull.size();
        filled.append(text.constData() + from, data - from);
        appendNumbers(filled, one.values);
        from = data + kNull.size();
    }
    return filled.append(text.constData() + from, text.size() - from);
}

QJsonArray legendOf(const QStringList &texts)
{
    QJsonArray legend;
    for (const QString &text : texts)
        legend.append(QJsonObject{{kName, text}});
    return legend;
}

/// The series without its values: there stands the mark.
QJsonObject mixedSeries(const ChartSeries &series)
{
    const QString &type = series.chartType;
    QJsonObject object{{kName, series.name}, {kType, pageType(type)}};
    if (type.contains(kArea)) {
        object.insert(kSmooth, true);
        object.insert(kAreaStyle, QJsonObject{{kNormal, QJsonObject()}});
    } else if (type == kSmoothLine) {
        object.insert(kSmooth, true);
    } else if (type.contains(kColumn)) {
        object.insert(kBarGap, 0);
    }
    if (type == kStackedColumns && series.stackGroup > 0)
        object.insert(kStack, series.stackGroup);
    if (series.yAxisSide == 1)
        object.insert(kYAxisIndex, 1);
    object.insert(kData, QJsonValue());
    return object;
}

QJsonObject valueAxis(const QString &position)
{
    return {
        {kType, kValue}, {kPosition, position}, {kSplitLine, QJsonObject{{kShow, false}}}, {kScale, true}};
}

/// Series and titles of pies that stand side by side.
class PieLine
{
public:
    explicit PieLine(int count)
        : m_step(kWholeWidth / (count + 1))
    {}

    void add(const QString &name, const QJsonArray &slices)
    {
        const QString x = QStringLiteral("%1%").arg(m_step * (m_series.size() + 1));
        const QJsonObject label{{kNormal, QJsonObject{{kShow, false}}},
                                {kEmphasis, QJsonObject{{kShow, true}}}};
        m_series.append(QJsonObject{{kName, name},
                                    {kType, kPie},
                                    {kLabel, label},
                                    {kData, slices},
                                    {kCenter, QJsonArray{x, QStringLiteral("50%")}}});
        const QJsonObject style{
            {kFontSize, kTitleSize}, {kFontFamily, kTitleFont}, {kFontWeight, kTitleWeight}};
        m_titles.append(QJsonObject{{kText, name},
                                    {kX, x},
                                    {kY, QStringLiteral("2%")},
                                    {kTextAlign, QStringLiteral("center")},
                                    {kTextStyle, style}});
    }

    QByteArray message(const QJsonArray &legend, const Config &config) const
    {
        return compact({{kAxisShow, false},
                        {kSeries, m_series},
                        {kLegend, legend},
                        {kLegendPosition, config.LegendPosition},
                        {kTitle, m_titles}});
    }

private:
    int m_step;
    QJsonArray m_series;
    QJsonArray m_titles;
};

QJsonObject slice(const QString &name, double value)
{
    return {{kName, name}, {kValue, value}};
}
} // namespace

QString TFChartData::pageType(const QString &name)
{
    static const QHash<QString, QString> types = {
        {QStringLiteral("XYPlot"), kScatter},
        {QStringLiteral("Line"), kLine},
        {QStringLiteral("LineSymbols"), kLine},
        {kSmoothLine, kLine},
        {kArea, kLine},
        {QStringLiteral("AreaStacked"), kLine},
        {QStringLiteral("AreaStacked100pc"), kLine},
        {QStringLiteral("Pie"), kPie},
        {kStackedColumns, kBar},
        {kColumn, kBar},
    };
    return types.value(name, kBar);
}

QByteArray TFChartData::mixedMessage(const ChartSet &set, const Config &config)
{
    QJsonArray series;
    QStringList names;
    bool hasRightAxis = false;
    for (const ChartSeries &one : set.series) {
        if (!one.visible)
            continue;
        series.append(mixedSeries(one));
        names.append(one.name);
        hasRightAxis = hasRightAxis || one.yAxisSide == 1;
    }
    QJsonArray axes{valueAxis(QStringLiteral("left"))};
    if (hasRightAxis)
        axes.append(valueAxis(QStringLiteral("right")));
    const QByteArray text =
        compact({{kXData, QJsonArray::fromStringList(set.labels)},
                 {kXAxisLabel, QJsonObject{{kInterval, QStringLiteral("auto")}, {kRotate, 0}}},
                 {kSeries, series},
                 {kLegend, legendOf(names)},
                 {kLegendPosition, config.LegendPosition},
                 {kYAxis, axes}});
    return withData(text, set.series);
}

QByteArray TFChartData::pieMessage(const ChartSet &set, const Config &config)
{
    if (set.series.isEmpty())
        return {};
    PieLine pies(set.series.size());
    for (const ChartSeries &series : set.series) {
        QJsonArray slices;
        for (int i = 0; i < series.values.size(); ++i)
            slices.append(slice(set.labels.value(i), series.values.at(i)));
        pies.add(series.name, slices);
    }
    return pies.message(legendOf(set.labels), config);
}

QByteArray TFChartData::pivotPieMessage(const ChartSet &set, const Config &config)
{
    if (set.labels.isEmpty() || set.series.isEmpty())
        return {};
    PieLine pies(set.labels.size());
    QStringList names;
    for (const QString &label : set.labels) {
        QJsonArray slices;
        for (const ChartSeries &series : set.series) {
            if (series.xName != label)
                continue;
            names.append(series.name);
            for (int i = 0; i < series.values.size(); ++i)
                slices.insert(i, slice(series.name, series.values.at(i)));
        }
        pies.add(label, slices);
    }
    names.removeDuplicates();
    return pies.message(legendOf(names), config);
}
