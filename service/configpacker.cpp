#include "configpacker.h"

#include <QJsonDocument>

namespace service {

namespace {

const QLatin1String VisibleKey("Visible");
const QLatin1String FieldNameKey("FieldName");
const QLatin1String ParameterCategoryKey("ParameterCategory");
const QLatin1String DataSourceFilterParamsKey("DataSourceFilterParams");

QString jsonText(const QJsonArray &array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

QString jsonText(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString propertyText(const QJsonValue &value)
{
    if (value.isBool())
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    return value.toVariant().toString();
}

/// Collects the elements of View_Config.
class PropertyList
{
public:
    explicit PropertyList(qint64 view)
        : m_view(view)
    {}

    void extend(const QString &name, const QString &text)
    {
        QJsonObject entry = newEntry(QStringLiteral("EXTEND"), name, QString());
        entry.insert(QStringLiteral("ext_prop_val"), text);
        entries << entry;
    }

    void plain(const QString &name, const QJsonValue &value)
    {
        QJsonObject entry = newEntry(QStringLiteral("NORMAL"), name, propertyText(value));
        // The reader of this one property looks for a member of its own name, not for prop_val.
        if (name == QLatin1String("BandsLevel"))
            entry.insert(name, value);
        entries << entry;
    }

    QJsonArray entries;

private:
    QJsonObject newEntry(const QString &type, const QString &name, const QString &value) const
    {
        return {{QStringLiteral("obj_vw_id"), m_view},
                {QStringLiteral("prop_typ"), type},
                {QStringLiteral("prop_name"), name},
                {QStringLiteral("prop_val"), value}};
    }

    qint64 m_view;
};

QJsonObject effectiveProperties(const ViewDocument &view)
{
    QJsonObject properties{
        {QStringLiteral("ObjViewType"),
         view.chart.isEmpty() ? QStringLiteral("ViewDataTable") : QStringLiteral("ViewDataChart")},
        {QStringLiteral("BandsLevel"), depthOf(view.bands)},
    };
    if (!view.childViews.isEmpty())
        properties.insert(QStringLiteral("isShowChild"), true);
    if (view.cross.isSet()) {
        properties.insert(QStringLiteral("IsCross"), true);
        properties.insert(QStringLiteral("CrossField"), view.cross.column);
    }
    if (!view.orderText.isEmpty())
        properties.insert(QStringLiteral("Order"), view.orderText);
    for (auto it = view.properties.begin(); it != view.properties.end(); ++it)
        properties.insert(it.key(), it.value());
    return properties;
}

void appendColumns(const QVector<BandNode> &nodes, const QString &owner, int level, QJsonArray *records)
{
    for (const BandNode &node : nodes) {
        *records << columnRecord(node, owner, records->size() + 1, level);
        appendColumns(node.children, node.fieldName, level + 1, records);
    }
}

QJsonArray packedFilters(const QJsonArray &filters)
{
    QJsonArray packed;
    for (const QJsonValue &value : filters) {
        QJsonObject filter = value.toObject();
        if (filter.contains(DataSourceFilterParamsKey))
            filter.insert(DataSourceFilterParamsKey,
                          jsonText(filter.value(DataSourceFilterParamsKey).toObject()));
        packed << filter;
    }
    return packed;
}

QJsonArray packedChildren(const ViewDocument &view, const DocumentFinder &find)
{
    QJsonArray packed;
    for (const ChildView &child : view.childViews)
        packed << QJsonObject{{QStringLiteral("Caption"), child.caption},
                              {QStringLiteral("ObjShowName"), QString::number(child.view)},
                              {QStringLiteral("Propertyparams"), linkText(child, find)}};
    return packed;
}

QJsonArray viewConfig(const ViewDocument &view, const QJsonArray &columns, const DocumentFinder &find)
{
    PropertyList list(view.id);
    const QJsonObject properties = effectiveProperties(view);
    for (auto it = properties.begin(); it != properties.end(); ++it)
        list.plain(it.key(), it.value());
    list.extend(QStringLiteral("Bands"), jsonText(columns));
    if (!view.filters.isEmpty())
        list.extend(QStringLiteral("filters"), jsonText(packedFilters(view.filters)));
    if (!view.childViews.isEmpty())
        list.extend(QStringLiteral("childView"), jsonText(packedChildren(view, find)));
    if (!view.chart.isEmpty())
        list.extend(QStringLiteral("ChartViewConfig"), jsonText(view.chart));
    return list.entries;
}

QJsonObject objectViewEntry(qint64 view, const QJsonObject &record, int number)
{
    return QJsonObject{
        {QStringLiteral("prop_typ"), QString()},
        {QStringLiteral("obj_vw_id"), view},
        {QStringLiteral("obj_prop_name"), record.value(FieldNameKey)},
        {QStringLiteral("obj_prop_cap"), record.value(QLatin1String("Caption"))},
        {QStringLiteral("vw_sts"),
         record.value(VisibleKey).toBool() ? QStringLiteral("1") : QStringLiteral("0")},
        {QStringLiteral("vw_fmt"), QString()},
        {QStringLiteral("dft_val"), QString()},
        {QStringLiteral("prop_sn"), QString::number(number)},
        {QStringLiteral("cnv_cfg"), QString()},
        {QStringLiteral("ots_cfg"), jsonText(record)},
    };
}

QByteArray memberText(const char *key, const QJsonArray &array)
{
    return QByteArray("\"") + key + "\":" + QJsonDocument(array).toJson(QJsonDocument::Compact);
}

bool isParameter(const ViewDocument *view, const QString &field)
{
    if (!view)
        return false;
    for (const QJsonValue &value : view->filters) {
        const QJsonObject filter = value.toObject();
        if (filter.value(FieldNameKey).toString() == field)
            return filter.value(ParameterCategoryKey).toInt() == 1;
    }
    return false;
}

} // namespace

QJsonObject columnRecord(const BandNode &node, const QString &ownerBand, int number, int level)
{
    QJsonObject record = node.settings;
    record.insert(FieldNameKey, node.fieldName);
    record.insert(QStringLiteral("OwnerBand"), ownerBand);
    record.insert(QStringLiteral("SN"), number);
    record.insert(QStringLiteral("Level"), level);
    record.insert(QStringLiteral("ShowStatus"), record.value(VisibleKey).toBool() ? 1 : 0);
    return record;
}

QJsonObject lowerCaseRecord(const QJsonObject &record)
{
    QJsonObject lower;
    for (auto it = record.begin(); it != record.end(); ++it) {
        QString key = it.key();
        key = key == QLatin1String("SN") ? QStringLiteral("sn") : key.at(0).toLower() + key.mid(1);
        lower.insert(key, it.value());
    }
    return lower;
}

QString linkText(const ChildView &child, const DocumentFinder &find)
{
    const ViewDocument *view = find(child.view);
    QStringList pairs;
    for (const auto &link : child.link) {
        const QString source = isParameter(view, link.first) ? QStringLiteral("数据源.") : QString();
        pairs << link.second + QLatin1Char('=') + source + link.first;
    }
    return pairs.join(QLatin1Char(';'));
}

QByteArray packConfiguration(const ViewDocument &view, const DocumentFinder &find)
{
    QJsonArray columns;
    appendColumns(view.bands, QString(), 1, &columns);
    QJsonArray all = columns;
    for (const BandNode &field : view.fields) {
        QJsonObject record = columnRecord(field, QString(), all.size() + 1, 1);
        all << record;
    }
    QJsonArray entries;
    for (const QJsonValue &record : qAsConst(all))
        entries << objectViewEntry(view.id, record.toObject(), entries.size() + 1);
    const QJsonArray name{
        QJsonObject{{QStringLiteral("obj_vw_id"), view.id}, {QStringLiteral("obj_vw_name"), view.name}}};
    return memberText("View_Config", viewConfig(view, columns, find)) + ',' +
           memberText("Object_View_Config", entries) + ',' + memberText("Object_View", name);
}

} // namespace service
