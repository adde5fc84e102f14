#include "tftreemodel.h"

#include <QAbstractProxyModel>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include "records/tfcategories.h"
#include "tftreeitem.h"

namespace {
// Keys of the rows, as the service spells them.
constexpr QLatin1String keyNodeCaption("NODE_CAP");
constexpr QLatin1String keyNodeCode("NODE_CODE");
constexpr QLatin1String keyNodeParent("P_NODE_CODE");
constexpr QLatin1String keyNodeType("NODE_TYP");
constexpr QLatin1String keyLevel("LEVEL");
constexpr QLatin1String keyViewId("OBJ_VW_ID");
constexpr QLatin1String keyUrl("NODE_URL");
constexpr QLatin1String keyBlockName("SECT_NAME");
constexpr QLatin1String keyBlockCode("SECT_ID");
constexpr QLatin1String keyBlockParent("P_SECT_ID");

qint64 integer(const QJsonObject &row, QLatin1String key)
{
    return row.value(key).toVariant().toLongLong();
}

/// The first two nodes that have a code: the second one matters to a first one that is its own parent.
struct Holders
{
    int first = -1;
    int second = -1;
};

using Nodes = std::vector<std::unique_ptr<TFTreeItem>>;

/// For each node the places of its children, in array order. The root, at place 0, is nobody's child.
std::vector<std::vector<int>> childrenOf(const Nodes &nodes)
{
    const int count = int(nodes.size());
    QHash<qint64, Holders> holders;
    holders.reserve(count);
    for (int i = 0; i < count; ++i) {
        Holders &holder = holders[nodes[i]->code()];
        if (holder.first < 0)
            holder.first = i;
        else if (holder.second < 0)
            holder.second = i;
    }
    std::vector<std::vector<int>> children(nodes.size());
    for (int i = 1; i < count; ++i) {
        const Holders holder = holders.value(nodes[i]->parentCode());
        const int parent = holder.first == i ? holder.second : holder.first;
        if (parent >= 0)
            children[parent].push_back(i);
    }
    return children;
}

/// Deletes a tree from its leaves upwards: a chain of rows may be deeper than the stack, and an item that is
/// taken from its parent costs a walk over all below it.
void destroy(std::unique_ptr<TFTreeItem> root)
{
    struct Place
    {
        QStandardItem *parent;
        int row;
    };
    std::vector<Place> places;
    const auto addChildren = [&places](QStandardItem *parent) {
        for (int row = 0; row < parent->rowCount(); ++row)
            places.push_back({parent, row});
    };
    addChildren(root.get());
    for (size_t i = 0; i < places.size(); ++i)
        addChildren(places[i].parent->child(places[i].row));
    for (auto place = places.rbegin(); place != places.rend(); ++place)
        delete place->parent->takeChild(place->row);
}
} // namespace

TFSubjectTreeModel::TFSubjectTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<TFTreeItem>())
{}

TFSubjectTreeModel::~TFSubjectTreeModel()
{
    destroy(std::move(m_root));
}

bool TFSubjectTreeModel::build(const QJsonValue &rows, int rootCode, bool checkable)
{
    beginResetModel();
    m_checked.clear();
    destroy(std::move(m_root));
    m_root = std::make_unique<TFTreeItem>();
    m_checkable = checkable;
    m_root->setData(qint64(checkable ? 0 : rootCode), TFTreeItem::CodeRole);
    const QJsonArray array = rows.toArray();
    if (!array.isEmpty())
        attach(createNodes(array));
    endResetModel();
    return !array.isEmpty();
}

TFSubjectTreeModel::Nodes TFSubjectTreeModel::createNodes(const QJsonArray &rows) const
{
    const auto create = m_checkable ? &createBlockNode : &createTreeNode;
    Nodes nodes;
    nodes.reserve(size_t(rows.size()));
    for (const QJsonValue &row : rows) {
        if (!row.isObject())
            continue;
        std::unique_ptr<TFTreeItem> node = create(row.toObject());
        if (node->code() != m_root->code())
            nodes.push_back(std::move(node));
    }
    return nodes;
}

void TFSubjectTreeModel::attach(Nodes nodes)
{
    nodes.insert(nodes.begin(), std::move(m_root));
    const std::vector<std::vector<int>> children = childrenOf(nodes);

    // From the root downwards, so that a circle of codes is never reached and no subtree is moved twice.
    m_root = std::move(nodes.front());
    std::vector<std::pair<TFTreeItem *, int>> pending{{m_root.get(), 0}};
    while (!pending.empty()) {
        const auto [parent, place] = pending.back();
        pending.pop_back();
        QList<QStandardItem *> rows;
        rows.reserve(int(children[place].size()));
        for (int child : children[place]) {
            TFTreeItem *item = nodes[child].release();
            rows.append(item);
            pending.emplace_back(item, child);
        }
        if (!rows.isEmpty())
            parent->appendRows(rows);
    }
}

std::unique_ptr<TFTreeItem> TFSubjectTreeModel::createTreeNode(const QJsonObject &row)
{
    TFTreeItem::Fields fields;
    fields.caption = row.value(keyNodeCaption).toString();
    fields.url = row.value(keyUrl).toString();
    fields.code = integer(row, keyNodeCode);
    fields.parentCode = integer(row, keyNodeParent);
    fields.nodeType = integer(row, keyNodeType);
    fields.level = integer(row, keyLevel);
    fields.viewId = integer(row, keyViewId);
    qCDebug(lcPage) << "node infor : " << fields.code << fields.caption;
    return std::make_unique<TFTreeItem>(fields);
}

std::unique_ptr<TFTreeItem> TFSubjectTreeModel::createBlockNode(const QJsonObject &row)
{
    TFTreeItem::Fields fields;
    fields.caption = row.value(keyBlockName).toString();
    fields.code = integer(row, keyBlockCode);
    fields.parentCode = integer(row, keyBlockParent);
    return std::make_unique<TFTreeItem>(fields);
}

TFTreeItem *TFSubjectTreeModel::itemFromIndex(const QModelIndex &index)
{
    QModelIndex source = index;
    while (const auto *proxy = qobject_cast<const QAbstractProxyModel *>(source.model()))
        source = proxy->mapToSource(source);
    return static_cast<TFTreeItem *>(source.internalPointer());
}

QModelIndex TFSubjectTreeModel::indexOf(TFTreeItem *item) const
{
    return item == m_root.get() ? QModelIndex() : createIndex(item->row(), 0, item);
}

QModelIndex TFSubjectTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const TFTreeItem *item = parent.isValid() ? itemFromIndex(parent) : m_root.get();
    return createIndex(row, column, item->child(row));
}

QModelIndex TFSubjectTreeModel::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(static_cast<TFTreeItem *>(itemFromIndex(child)->parent()))
                           : QModelIndex();
}

int TFSubjectTreeModel::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > 0)
        return 0;
    return parent.isValid() ? itemFromIndex(parent)->rowCount() : m_root->rowCount();
}

int TFSubjectTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant TFSubjectTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (m_checkable && role == Qt::CheckStateRole)
        return m_checked.contains(index) ? Qt::Checked : Qt::Unchecked;
    return itemFromIndex(index)->data(role);
}

bool TFSubjectTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !m_checkable || !index.isValid())
        return QAbstractItemModel::setData(index, value, role);
    bool isNumber = false;
    const int state = value.toInt(&isNumber);
    if (!isNumber || (state != Qt::Checked && state != Qt::Unchecked))
        return QAbstractItemModel::setData(index, value, role);

    QList<QModelIndex> pending{index};
    while (!pending.isEmpty()) {
        const QModelIndex current = pending.takeLast();
        setChecked(current, state == Qt::Checked);
        for (int row = rowCount(current) - 1; row >= 0; --row)
            pending.append(this->index(row, 0, current));
    }
    return QAbstractItemModel::setData(index, value, role);
}

void TFSubjectTreeModel::setChecked(const QModelIndex &index, bool checked)
{
    if (m_checked.contains(index) == checked)
        return;
    if (checked)
        m_checked.insert(index);
    else
        m_checked.remove(index);
    emit dataChanged(index, index, {Qt::CheckStateRole});
}

void TFSubjectTreeModel::clearChecks()
{
    const QSet<QModelIndex> cleared = std::exchange(m_checked, {});
    for (const QModelIndex &index : cleared)
        emit dataChanged(index, index, {Qt::CheckStateRole});
}

QVariantList TFSubjectTreeModel::checkedCodes() const
{
    QVariantList codes;
    codes.reserve(m_checked.size());
    for (const QModelIndex &index : m_checked)
        codes.append(int(itemFromIndex(index)->code()));
    return codes;
}

QVariant TFSubjectTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return m_root->data(section);
}

Qt::ItemFlags TFSubjectTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    if (m_checkable)
        return Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return QAbstractItemModel::flags(index);
}
