#include "bandreader.h"

#include "viewrules.h"

#include <QSet>

namespace service {

namespace {

const int MaxDepth = 16;
const QLatin1String FieldNameKey("FieldName");
const QLatin1String ChildrenKey("children");

/// Reads one tree; it knows the names that are taken.
class BandReader
{
public:
    QVector<BandNode> nodes(const QJsonArray &array, const DocumentPlace &place, int depth)
    {
        QVector<BandNode> result;
        if (depth > MaxDepth) {
            place.fault(QStringLiteral("bands more than %1 deep").arg(MaxDepth));
            return result;
        }
        for (int i = 0; i < array.size(); ++i)
            result << node(array.at(i), place.element(i), depth);
        return result;
    }

private:
    BandNode node(const QJsonValue &value, const DocumentPlace &place, int depth)
    {
        BandNode node;
        node.settings = checkedObject(value, rules::column(), place);
        node.fieldName = node.settings.value(FieldNameKey).toString();
        if (node.settings.contains(ChildrenKey))
            readChildren(&node, place, depth);
        if (!node.isBand() && node.fieldName.isEmpty())
            place.member(FieldNameKey).fault(QStringLiteral("a column needs the name of its field"));
        if (m_names.contains(node.fieldName))
            place.member(FieldNameKey).fault(QStringLiteral("\"%1\" stands twice").arg(node.fieldName));
        m_names.insert(node.fieldName);
        node.settings.insert(FieldNameKey, node.fieldName);
        return node;
    }

    void readChildren(BandNode *node, const DocumentPlace &place, int depth)
    {
        const DocumentPlace at = place.member(ChildrenKey);
        if (node->fieldName.isEmpty())
            node->fieldName = QStringLiteral("BAND_%1").arg(++m_bands);
        node->children = nodes(node->settings.take(ChildrenKey).toArray(), at, depth + 1);
        node->settings.insert(QStringLiteral("ColumnType"), QStringLiteral("Band"));
        if (node->children.isEmpty())
            at.fault(QStringLiteral("a band needs at least one column"));
    }

    QSet<QString> m_names;
    int m_bands = 0;
};

} // namespace

QVector<BandNode> readBands(const QJsonArray &array, const DocumentPlace &place)
{
    return BandReader().nodes(array, place, 1);
}

QVector<BandNode> readFields(const QJsonObject &object, const DocumentPlace &place)
{
    QVector<BandNode> fields;
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (isComment(it.key()))
            continue;
        BandNode node;
        node.fieldName = it.key();
        node.settings = checkedObject(it.value(), rules::column(), place.member(it.key()));
        node.settings.remove(ChildrenKey);
        node.settings.insert(FieldNameKey, it.key());
        fields << node;
    }
    return fields;
}

} // namespace service
