#include "rowmodel.h"

#include "celltext.h"

#include <numeric>

namespace Qtitan {

RowModel::RowModel(QObject *parent)
    : QAbstractProxyModel(parent)
{
    // Values that change in a burst arrange the rows once.
    m_rearrange.setSingleShot(true);
    m_rearrange.setInterval(0);
    connect(&m_rearrange, &QTimer::timeout, this, [this] { reorder([this] { rebuild(); }); });
}

bool RowModel::isArranged() const
{
    return m_sort.isActive() || !m_groupColumns.isEmpty() || m_filter;
}

void RowModel::rebuild()
{
    const QAbstractItemModel *source = sourceModel();
    // The root went away with its rows.
    const bool gone = !source || (m_hasRoot && !m_root.isValid());
    const int rows = gone ? 0 : source->rowCount(m_root);
    m_columns = gone ? 0 : source->columnCount(m_root);
    if (gone || !isArranged()) {
        m_order.setPlain(rows);
        return;
    }
    std::vector<int> ordered(static_cast<std::size_t>(rows));
    std::iota(ordered.begin(), ordered.end(), 0);
    if (m_filter)
        ordered.erase(
            std::remove_if(ordered.begin(), ordered.end(), [this](int row) { return !m_filter(row); }),
            ordered.end());
    if (rows > 0)
        sortRows(ordered, *source, m_root, m_sort);
    std::vector<GroupLevel> levels;
    for (int column : qAsConst(m_groupColumns))
        levels.push_back(groupLevel(column, ordered));
    m_order.setOrdered(rows, std::move(ordered), levels);
}

GroupLevel RowModel::groupLevel(int column, const std::vector<int> &ordered) const
{
    GroupLevel level;
    level.keyOfRow.assign(static_cast<std::size_t>(sourceModel()->rowCount(m_root)), 0);
    QHash<QString, int> known;
    const auto add = [&](int row) {
        const QString key = displayText(sourceModel()->index(row, column, m_root).data(), QLocale());
        auto place = known.constFind(key);
        if (place == known.constEnd()) {
            place = known.insert(key, level.keys.size());
            level.keys.append(key);
        }
        level.keyOfRow[static_cast<std::size_t>(row)] = *place;
    };
    // Groups stand in the order in which the model brings them, unless the rows are sorted by their very
    // column.
    if (m_sort.column == column) {
        for (int row : ordered)
            add(row);
    } else {
        std::vector<bool> wanted(level.keyOfRow.size(), false);
        for (int row : ordered)
            wanted[static_cast<std::size_t>(row)] = true;
        for (int row = 0; row < int(wanted.size()); ++row)
            if (wanted[static_cast<std::size_t>(row)])
                add(row);
    }
    return level;
}

void RowModel::reorder(const std::function<void()> &change)
{
    emit layoutAboutToBeChanged();
    struct Place
    {
        int row;
        QString group;
    };
    const QModelIndexList before = persistentIndexList();
    QVector<Place> places;
    places.reserve(before.size());
    for (const QModelIndex &index : before) {
        const RowGroup *group = m_order.groupAt(index.row());
        places.append({m_order.rowAt(index.row()), group ? group->path : QString()});
    }
    change();
    QModelIndexList after;
    after.reserve(before.size());
    for (int i = 0; i < before.size(); ++i) {
        const Place &place = places.at(i);
        const int line = place.row >= 0 ? m_order.lineOf(place.row) : m_order.lineOfGroup(place.group);
        after.append(line >= 0 ? createIndex(line, before.at(i).column()) : QModelIndex());
    }
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

void RowModel::setSortOrder(const SortOrder &order)
{
    reorder([&] {
        m_sort = order;
        rebuild();
    });
}

void RowModel::setGroupColumns(const QVector<int> &columns)
{
    if (columns == m_groupColumns)
        return;
    reorder([&] {
        m_groupColumns = columns;
        rebuild();
    });
}

void RowModel::setRowFilter(const std::function<bool(int)> &accepts)
{
    reorder([&] {
        m_filter = accepts;
        rebuild();
    });
}

void RowModel::setOpen(int line, bool open)
{
    const RowGroup *group = m_order.groupAt(line);
    if (!group || group->open == open)
        return;
    RowOrder changed = m_order;
    changed.setOpen(group->path, open);
    const int difference = qAbs(changed.lineCount() - m_order.lineCount());
    if (open)
        beginInsertRows(QModelIndex(), line + 1, line + difference);
    else
        beginRemoveRows(QModelIndex(), line + 1, line + difference);
    std::swap(m_order, changed);
    open ? endInsertRows() : endRemoveRows();
    emit dataChanged(index(line, 0), index(line, m_columns - 1));
}

void RowModel::setAllOpen(bool open)
{
    reorder([&] { m_order.setAllOpen(open); });
}

void RowModel::reveal(int modelRow)
{
    if (m_order.lineOf(modelRow) < 0)
        reorder([&] { m_order.reveal(modelRow); });
}

QModelIndex RowModel::sourceIndex(int line, int column) const
{
    const int row = m_order.rowAt(line);
    return row >= 0 && sourceModel() ? sourceModel()->index(row, column, m_root) : QModelIndex();
}

QModelIndex RowModel::index(int row, int column, const QModelIndex &parent) const
{
    if (parent.isValid() || row < 0 || column < 0 || row >= rowCount() || column >= m_columns)
        return QModelIndex();
    return createIndex(row, column);
}

QModelIndex RowModel::parent(const QModelIndex &) const
{
    return QModelIndex();
}

QModelIndex RowModel::sibling(int row, int column, const QModelIndex &) const
{
    return index(row, column);
}

int RowModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_order.lineCount();
}

int RowModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

bool RowModel::hasChildren(const QModelIndex &parent) const
{
    return !parent.isValid() && rowCount() > 0 && m_columns > 0;
}

QVariant RowModel::data(const QModelIndex &index, int role) const
{
    if (const RowGroup *group = m_order.groupAt(index.row()))
        return role == Qt::DisplayRole && index.column() == 0 ? QVariant(group->key) : QVariant();
    const QModelIndex source = mapToSource(index);
    return source.isValid() ? sourceModel()->data(source, role) : QVariant();
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (!sourceModel() || orientation == Qt::Vertical)
        return QVariant();
    return sourceModel()->headerData(section, orientation, role);
}

Qt::ItemFlags RowModel::flags(const QModelIndex &index) const
{
    const QModelIndex source = mapToSource(index);
    if (source.isValid())
        return sourceModel()->flags(source);
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

QModelIndex RowModel::mapToSource(const QModelIndex &index) const
{
    return index.isValid() ? sourceIndex(index.row(), index.column()) : QModelIndex();
}

QModelIndex RowModel::mapFromSource(const QModelIndex &index) const
{
    if (!index.isValid() || index.parent() != m_root)
        return QModelIndex();
    return this->index(m_order.lineOf(index.row()), index.column());
}

} // namespace Qtitan
