#include "tfviewconfigtable.h"

#include "tfchartviewjsontable.h"
#include "tfchildviewjsontable.h"
#include "tffilterjsontable.h"
#include "tfheaderfieldconfigdata.h"
#include "tfjsontablefactory.h"
#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {
constexpr QLatin1String ViewKey("obj_vw_id");
constexpr QLatin1String TypeKey("prop_typ");
constexpr QLatin1String NameKey("prop_name");
constexpr QLatin1String ValueKey("prop_val");
constexpr QLatin1String ExtensionKey("ext_prop_val");
constexpr QLatin1String BandsLevelKey("BandsLevel");

constexpr QLatin1String Extended("EXTEND");
constexpr QLatin1String OrderName("order");
constexpr QLatin1String Descending("DESC");
constexpr int NoView = -1;

struct Extension
{
    QLatin1String name;
    int tableId;
};

constexpr Extension Extensions[] = {
    {QLatin1String("Bands"), TFTableId::HeaderFields},
    {QLatin1String("childView"), TFTableId::ChildViews},
    {QLatin1String("filters"), TFTableId::Filters},
    {QLatin1String("ChartViewConfig"), TFTableId::ChartView},
};

int extensionTable(const QString &name)
{
    const auto it = std::find_if(std::begin(Extensions), std::end(Extensions), [&name](const Extension &e) {
        return name.compare(e.name, Qt::CaseInsensitive) == 0;
    });
    return it == std::end(Extensions) ? int(TFTableId::Unknown) : it->tableId;
}

bool named(const QString &name, const char *part)
{
    return name.contains(QLatin1String(part), Qt::CaseInsensitive);
}
} // namespace

/// One element of the table.
struct TFViewConfigTable::Entry
{
    int objVwId = 0;
    QString propTyp;
    QString propName;
    QString propVal;
    std::unique_ptr<TFBaseJsonTable> table; ///< null unless the entry carries one
};

TFViewConfigTable::TFViewConfigTable(QObject *parent)
    : TFBaseJsonTable(parent)
{}

TFViewConfigTable::~TFViewConfigTable() = default;

void TFViewConfigTable::initWith(const QJsonValue &value)
{
    m_entries.clear();
    const QJsonArray elements = value.toArray();
    // The properties come first: who hears of a child view may ask for any of them.
    for (const QJsonValue &element : elements) {
        if (element.isObject())
            readProperty(element.toObject());
    }
    for (const QJsonValue &element : elements) {
        if (element.isObject())
            readEntry(element.toObject());
    }
}

int TFViewConfigTable::tableType() const
{
    return TFTableId::ViewConfig;
}

void TFViewConfigTable::readProperty(const QJsonObject &element)
{
    const QString name = element.value(NameKey).toString();
    const QString text = element.value(ValueKey).toString();
    const bool flag = text.toInt() == 1;
    // Some names match by containment, some exactly, some in any case; the order of the tests counts.
    if (named(name, "isshowchild"))
        m_showChild = flag;
    else if (named(name, "isorder"))
        m_order = flag;
    else if (named(name, "isgetchartdata"))
        m_getChartData = flag;
    else if (named(name, "frozencount"))
        m_frozenCount = element.value(ValueKey).toVariant().toInt();
    else if (name == QLatin1String("IsCross"))
        m_cross = flag;
    else if (name == QLatin1String("IsTurnOver"))
        m_turnOver = flag;
    else if (name == QLatin1String("IsGroup"))
        m_group = flag;
    else if (name == QLatin1String("GroupFields"))
        m_groupFields = text;
    else if (name == QLatin1String("GroupFormatString"))
        m_groupFormat = text;
    else if (name.toLower() == QLatin1String("bandslevel"))
        m_bandsLevel = element.value(BandsLevelKey).toInt();
    else if (name.toLower() == QLatin1String("vgridcolheaderfield"))
        m_vGridColHeaderField = text;
    else if (name == QLatin1String("isShowFilter"))
        m_showFilter = element.value(ValueKey).toBool();
}

void TFViewConfigTable::readEntry(const QJsonObject &element)
{
    auto entry = std::make_unique<Entry>();
    entry->objVwId = element.value(ViewKey).toInt();
    entry->propTyp = element.value(TypeKey).toString();
    entry->propName = element.value(NameKey).toString();
    entry->propVal = element.value(ValueKey).toString();
    if (m_viewId == NoView)
        m_viewId = entry->objVwId;
    if (entry->propTyp.compare(Extended, Qt::CaseInsensitive) == 0)
        entry->table = readExtension(entry->propName, element);
    m_entries.push_back(std::move(entry));
}

std::unique_ptr<TFBaseJsonTable> TFViewConfigTable::readExtension(const QString &name,
                                                                  const QJsonObject &element)
{
    const int tableId = extensionTable(name);
    std::unique_ptr<TFBaseJsonTable> table = TFJsonTableFactory::create(tableId);
    if (!table)
        return table;
    if (tableId == TFTableId::ChildViews)
        connect(table.get(), &TFBaseJsonTable::sigJsonData, this, &TFBaseJsonTable::sigJsonData);
    const QJsonValue text = element.value(ExtensionKey);
    if (!text.isUndefined())
        table->initWith(text);
    return table;
}

template <typename Table> Table *TFViewConfigTable::firstTable(int tableId) const
{
    const auto it = std::find_if(m_entries.begin(), m_entries.end(), [tableId](const auto &entry) {
        return entry->table && entry->table->tableType() == tableId;
    });
    return it == m_entries.end() ? nullptr : static_cast<Table *>((*it)->table.get());
}

TFHeaderFieldConfigData *TFViewConfigTable::headerTable() const
{
    return firstTable<TFHeaderFieldConfigData>(TFTableId::HeaderFields);
}

TFChartViewJsonTable *TFViewConfigTable::chartTable() const
{
    return firstTable<TFChartViewJsonTable>(TFTableId::ChartView);
}

TFChildViewJsonTable *TFViewConfigTable::childTable() const
{
    return firstTable<TFChildViewJsonTable>(TFTableId::ChildViews);
}

TFFilterJsonTable *TFViewConfigTable::filterTable() const
{
    return firstTable<TFFilterJsonTable>(TFTableId::Filters);
}

QString TFViewConfigTable::firstValue(bool (*matches)(const QString &)) const
{
    const auto it = std::find_if(m_entries.begin(), m_entries.end(),
                                 [matches](const auto &entry) { return matches(entry->propName); });
    return it == m_entries.end() ? QString() : (*it)->propVal;
}

QString TFViewConfigTable::sectorNum() const
{
    return firstValue([](const QString &name) { return name.toLower() == QLatin1String("sectornum"); });
}

QString TFViewConfigTable::rootSectorNum() const
{
    return firstValue([](const QString &name) { return name == QLatin1String("RootSectorNum"); });
}

QPair<QString, QVariant> TFViewConfigTable::orderProperty() const
{
    const QString text = firstValue([](const QString &name) { return name.toLower() == OrderName; });
    if (text.isEmpty())
        return {};
    // A JSON object takes members of a long list only one by one, and moves the later ones each time.
    QVariantMap order;
    const QStringList terms = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &term : terms) {
        const QStringList parts = term.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (parts.size() == 2)
            order.insert(parts.at(0), parts.at(1).compare(Descending, Qt::CaseInsensitive) == 0 ? -1 : 1);
    }
    return {OrderName, QJsonObject::fromVariantMap(order)};
}

QString TFViewConfigTable::childViewParams(qint64 objVwId) const
{
    const TFChildViewJsonTable *children = childTable();
    return children ? children->propertyParams(objVwId) : QString();
}
