#include "viewchecker.h"

#include "database.h"
#include "rowsource.h"

namespace service {

namespace {

QString settingText(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

/// Checks the names of one document against the columns of its SQL.
class NameChecker
{
public:
    NameChecker(const ViewDocument &view, const Columns &columns, const DocumentPlace &place)
        : m_view(view)
        , m_columns(columns)
        , m_place(place)
    {}

    void run() const
    {
        checkBands(m_view.bands, m_place.member(QStringLiteral("bands")));
        for (const BandNode &field : m_view.fields)
            require(field.fieldName, m_place.member(QStringLiteral("fields")).member(field.fieldName));
        requireAll(m_view.key, m_place.member(QStringLiteral("key")));
        for (const OrderTerm &term : m_view.order)
            require(term.field, m_place.member(QStringLiteral("order")));
        checkFilters();
        checkChildren();
        checkCross();
        if (!m_view.cross.isSet())
            checkChart();
        if (!m_view.blockField.isEmpty())
            require(m_view.blockField, m_place.member(QStringLiteral("block")));
    }

private:
    void require(const QString &name, const DocumentPlace &place) const
    {
        if (!m_columns.contains(name))
            place.fault(QStringLiteral("no column \"%1\" in sql; %2").arg(name, m_columns.listing()));
    }

    void requireAll(const QStringList &names, const DocumentPlace &place) const
    {
        for (const QString &name : names)
            require(name, place);
    }

    void checkBands(const QVector<BandNode> &nodes, const DocumentPlace &place) const
    {
        for (int i = 0; i < nodes.size(); ++i) {
            const BandNode &node = nodes.at(i);
            if (node.isBand())
                checkBands(node.children, place.element(i).member(QStringLiteral("children")));
            else if (settingText(node.settings, "UnboundExpression").isEmpty())
                require(node.fieldName, place.element(i).member(QStringLiteral("FieldName")));
        }
    }

    /// A control that sets no condition of its own has no column: buttons, units, named parameters.
    static bool isCondition(const QJsonObject &filter)
    {
        const QString className = settingText(filter, "ClassName");
        return filter.value(QLatin1String("ParameterCategory")).toInt() != 1 &&
               !className.contains(QLatin1String("button"), Qt::CaseInsensitive) &&
               className != QLatin1String("UnitFactorCombobox") &&
               className != QLatin1String("GroupFlagControl") && !settingText(filter, "FieldName").isEmpty();
    }

    void checkFilters() const
    {
        const DocumentPlace place = m_place.member(QStringLiteral("filters"));
        for (int i = 0; i < m_view.filters.size(); ++i) {
            const QJsonObject filter = m_view.filters.at(i).toObject();
            if (!isCondition(filter))
                continue;
            // This control reports its value type as the field.
            const bool isInterval =
                settingText(filter, "ClassName").contains(QLatin1String("YearMonthInterval"));
            const char *key = isInterval ? "ValueType" : "FieldName";
            require(settingText(filter, key), place.element(i).member(QLatin1String(key)));
        }
    }

    void checkChildren() const
    {
        for (int i = 0; i < m_view.childViews.size(); ++i) {
            const DocumentPlace place = m_place.member(QStringLiteral("childViews")).element(i);
            for (const auto &link : m_view.childViews.at(i).link)
                require(link.second, place.member(QStringLiteral("link")).member(link.first));
        }
    }

    void checkCross() const
    {
        const CrossTable &cross = m_view.cross;
        if (!cross.isSet())
            return;
        const DocumentPlace place = m_place.member(QStringLiteral("cross"));
        requireAll(cross.rows, place.member(QStringLiteral("rows")));
        require(cross.column, place.member(QStringLiteral("column")));
        require(cross.columnOrder, place.member(QStringLiteral("columnOrder")));
        requireAll(cross.values, place.member(QStringLiteral("values")));
        for (const OrderTerm &term : m_view.order) {
            if (!cross.rows.contains(term.field))
                m_place.member(QStringLiteral("order"))
                    .fault(QStringLiteral("a cross view is ordered by columns of cross.rows only"));
        }
    }

    void checkChart() const
    {
        if (m_view.chart.isEmpty())
            return;
        const DocumentPlace place = m_place.member(QStringLiteral("chart"));
        const QString axis = settingText(m_view.chart, "XFieldName");
        if (!axis.isEmpty())
            require(axis, place.member(QStringLiteral("XFieldName")));
        const QJsonArray series = m_view.chart.value(QLatin1String("ChartDataConfigs")).toArray();
        for (int i = 0; i < series.size(); ++i)
            require(settingText(series.at(i).toObject(), "FieldName"),
                    place.member(QStringLiteral("ChartDataConfigs"))
                        .element(i)
                        .member(QStringLiteral("FieldName")));
    }

    const ViewDocument &m_view;
    const Columns &m_columns;
    const DocumentPlace &m_place;
};

QHash<QString, ValueKind> declaredKinds(const ViewDocument &view)
{
    QHash<QString, ValueKind> kinds;
    for (const BandNode &node : leavesOf(view.bands) + view.fields)
        kinds.insert(node.fieldName, kindOfType(settingText(node.settings, "ValueType")));
    return kinds;
}

} // namespace

Columns checkAgainstDatabase(const ViewDocument &view, Database &database, const DocumentPlace &place)
{
    const QVector<StoredColumn> stored =
        probeColumns(view.sql.bind(view.params), database, place.member(QStringLiteral("sql")));
    const Columns columns(stored, declaredKinds(view), database.dialect());
    if (!stored.isEmpty())
        NameChecker(view, columns, place).run();
    return columns;
}

} // namespace service
