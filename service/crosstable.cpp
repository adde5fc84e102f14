#include "crosstable.h"

#include "configpacker.h"
#include "database.h"
#include "datarequest.h"
#include "jsonwriter.h"
#include "rowwriter.h"

#include <QJsonDocument>

#include <algorithm>

namespace service {

namespace {

const QLatin1String Separator("__");

struct GeneratedColumn
{
    QString value;  ///< text of the cross field
    QVariant order; ///< what the columns are ordered by
};

struct Group
{
    QByteArray members; ///< `"F":1,...` of the row fields
    QByteArray cells;   ///< `,"2019__F":1,...` of the values
};

bool isLess(const QVariant &a, const QVariant &b)
{
    bool aIsNumber = false;
    bool bIsNumber = false;
    const double first = a.toDouble(&aIsNumber);
    const double second = b.toDouble(&bIsNumber);
    if (aIsNumber && bIsNumber)
        return first < second;
    return a.toString() < b.toString();
}

/// Collects cells into groups and the values that become columns.
class Pivot
{
public:
    explicit Pivot(const ServedView &view)
        : m_cross(view.document.cross)
        , m_columns(view.columns)
        , m_writer(view.columns)
    {
        for (const QString &field : m_cross.values)
            m_valuePlaces << m_columns.place(field);
        for (const QString &field : m_cross.rows)
            m_rowPlaces << m_columns.place(field);
    }

    void add(const Cursor &cell)
    {
        Group &group = groupOf(cell);
        const QString value = cell.value(m_columns.place(m_cross.column)).toString();
        if (!m_known.contains(value)) {
            m_known.insert(value);
            generated.push_back({value, cell.value(m_columns.place(m_cross.columnOrder))});
        }
        for (int i = 0; i < m_valuePlaces.size(); ++i) {
            group.cells += ',';
            json::appendText(group.cells, value + Separator + m_cross.values.at(i));
            group.cells += ':';
            m_writer.appendValue(group.cells, cell.stored(m_valuePlaces.at(i)),
                                 m_columns.kind(m_valuePlaces.at(i)));
        }
    }

    std::vector<Group> groups;
    std::vector<GeneratedColumn> generated;

private:
    Group &groupOf(const Cursor &cell)
    {
        QByteArray members;
        for (const int place : m_rowPlaces) {
            if (!members.isEmpty())
                members += ',';
            m_writer.appendMember(members, cell, place);
        }
        auto known = m_groupPlaces.constFind(members);
        if (known == m_groupPlaces.constEnd()) {
            known = m_groupPlaces.insert(members, static_cast<int>(groups.size()));
            groups.push_back({members, QByteArray()});
        }
        return groups[static_cast<std::size_t>(*known)];
    }

    const CrossTable &m_cross;
    const Columns &m_columns;
    RowWriter m_writer;
    QVector<int> m_valuePlaces;
    QVector<int> m_rowPlaces;
    QSet<QString> m_known;
    QHash<QByteArray, int> m_groupPlaces;
};

/// Writes the column list: the columns of the document, with the generated ones where the first value stands.
class ColumnList
{
public:
    ColumnList(const ViewDocument &view, const std::vector<GeneratedColumn> &generated)
        : m_cross(view.cross)
        , m_generated(generated)
        , m_leaves(leavesOf(view.bands))
    {
        append(view.bands, QString(), 1);
    }

    QByteArray json() const { return QJsonDocument(m_records).toJson(QJsonDocument::Compact); }

private:
    void append(const QVector<BandNode> &nodes, const QString &owner, int level)
    {
        for (const BandNode &node : nodes) {
            if (m_cross.values.contains(node.fieldName)) {
                appendGenerated(owner, level);
                continue;
            }
            add(node, owner, level);
            append(node.children, node.fieldName, level + 1);
        }
    }

    void add(const BandNode &node, const QString &owner, int level)
    {
        m_records << lowerCaseRecord(columnRecord(node, owner, m_records.size() + 1, level));
    }

    void appendGenerated(const QString &owner, int level)
    {
        if (m_done)
            return;
        m_done = true;
        for (const GeneratedColumn &column : m_generated) {
            QString caption = m_cross.caption;
            caption.replace(QLatin1String("%1"), column.value);
            if (m_cross.values.size() == 1) {
                addValue(m_cross.values.first(), column.value, caption, owner, level);
                continue;
            }
            const BandNode band{QStringLiteral("BAND_") + column.value, bandSettings(caption), {}};
            add(band, owner, level);
            for (const QString &field : m_cross.values)
                addValue(field, column.value, QString(), band.fieldName, level + 1);
        }
    }

    static QJsonObject bandSettings(const QString &caption)
    {
        return {{QStringLiteral("Caption"), caption},
                {QStringLiteral("ColumnType"), QStringLiteral("Band")},
                {QStringLiteral("Visible"), true}};
    }

    void addValue(const QString &field, const QString &value, const QString &caption, const QString &owner,
                  int level)
    {
        const auto leaf = std::find_if(m_leaves.begin(), m_leaves.end(),
                                       [&field](const BandNode &node) { return node.fieldName == field; });
        BandNode node;
        if (leaf != m_leaves.end())
            node = *leaf;
        node.fieldName = value + Separator + field;
        if (!caption.isEmpty())
            node.settings.insert(QStringLiteral("Caption"), caption);
        add(node, owner, level);
    }

    const CrossTable &m_cross;
    const std::vector<GeneratedColumn> &m_generated;
    QVector<BandNode> m_leaves;
    QJsonArray m_records;
    bool m_done = false;
};

QByteArray pageOf(const std::vector<Group> &groups, const std::optional<Page> &page)
{
    std::size_t first = 0;
    std::size_t end = groups.size();
    if (page) {
        first =
            std::min(end, static_cast<std::size_t>(page->number - 1) * static_cast<std::size_t>(page->size));
        end = std::min(end, first + static_cast<std::size_t>(page->size));
    }
    QByteArray data("[");
    for (std::size_t i = first; i < end; ++i) {
        if (i > first)
            data += ',';
        data += '{' + groups[i].members + groups[i].cells + '}';
    }
    return data + ']';
}

} // namespace

Result<CrossRows> crossRows(const ServedView &view, Cursor &cells, const std::optional<Page> &page,
                            qint64 limit)
{
    Pivot pivot(view);
    for (qint64 count = 1; cells.next(); ++count) {
        if (count > limit)
            return Refusal{400, QStringLiteral("filter: more than %1 cells; narrow it").arg(limit)};
        pivot.add(cells);
    }
    if (!cells.isGood())
        return cells.refusal();
    const bool isDescending = view.document.properties.value(QLatin1String("IsCrossSortByDesc")).toBool();
    std::stable_sort(pivot.generated.begin(), pivot.generated.end(),
                     [isDescending](const GeneratedColumn &a, const GeneratedColumn &b) {
                         return isDescending ? isLess(b.order, a.order) : isLess(a.order, b.order);
                     });
    return CrossRows{pageOf(pivot.groups, page), ColumnList(view.document, pivot.generated).json(),
                     static_cast<qint64>(pivot.groups.size())};
}

} // namespace service
