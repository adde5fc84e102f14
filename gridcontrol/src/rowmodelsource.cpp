// How the lines follow the model that they show.

#include "rowmodel.h"

namespace Qtitan {

void RowModel::setSource(QAbstractItemModel *source, const QModelIndex &root)
{
    beginResetModel();
    if (sourceModel())
        disconnect(sourceModel(), nullptr, this, nullptr);
    // The same source again would not be connected by the toolkit, which then reads it after its end.
    setSourceModel(nullptr);
    setSourceModel(source);
    m_root = root;
    m_hasRoot = root.isValid();
    m_sort = {};
    m_groupColumns.clear();
    m_filter = nullptr;
    m_order = {};
    if (source)
        connectSource();
    rebuild();
    endResetModel();
}

template <typename Before, typename After> void RowModel::resetAround(Before before, After after)
{
    connect(sourceModel(), before, this, [this] { beginResetModel(); });
    connect(sourceModel(), after, this, [this] {
        rebuild();
        endResetModel();
        emit sourceColumnsChanged();
    });
}

template <typename Before, typename After>
void RowModel::connectRows(Before before, After after, BeginRows begin, EndRows end)
{
    connect(sourceModel(), before, this, [this, begin](const QModelIndex &parent, int first, int last) {
        if (parent != m_root)
            return;
        if (isArranged())
            beginResetModel();
        else
            (this->*begin)(QModelIndex(), first, last);
    });
    connect(sourceModel(), after, this, [this, end](const QModelIndex &parent) {
        if (parent != m_root)
            return;
        rebuild();
        isArranged() ? endResetModel() : (this->*end)();
    });
}

void RowModel::connectSource()
{
    using Model = QAbstractItemModel;
    resetAround(&Model::modelAboutToBeReset, &Model::modelReset);
    resetAround(&Model::layoutAboutToBeChanged, &Model::layoutChanged);
    resetAround(&Model::columnsAboutToBeInserted, &Model::columnsInserted);
    resetAround(&Model::columnsAboutToBeRemoved, &Model::columnsRemoved);
    resetAround(&Model::columnsAboutToBeMoved, &Model::columnsMoved);
    resetAround(&Model::rowsAboutToBeMoved, &Model::rowsMoved);
    connectRows(&Model::rowsAboutToBeInserted, &Model::rowsInserted, &RowModel::beginInsertRows,
                &RowModel::endInsertRows);
    connectRows(&Model::rowsAboutToBeRemoved, &Model::rowsRemoved, &RowModel::beginRemoveRows,
                &RowModel::endRemoveRows);
    connect(sourceModel(), &Model::dataChanged, this, &RowModel::sourceDataChanged);
    connect(sourceModel(), &Model::headerDataChanged, this,
            [this](Qt::Orientation side, int first, int last) {
                if (m_columns != sourceModel()->columnCount(m_root))
                    resetFromSource();
                else if (side == Qt::Horizontal && first <= last)
                    emit headerDataChanged(side, qMax(first, 0), qMin(last, m_columns - 1));
            });
    connect(sourceModel(), &QObject::destroyed, this, &RowModel::forgetSource);
}

void RowModel::forgetSource()
{
    beginResetModel();
    m_sort = {};
    m_groupColumns.clear();
    m_filter = nullptr;
    m_order.setPlain(0);
    m_columns = 0;
    endResetModel();
    emit sourceColumnsChanged();
}

void RowModel::resetFromSource()
{
    beginResetModel();
    rebuild();
    endResetModel();
    emit sourceColumnsChanged();
}

void RowModel::sourceDataChanged(const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles)
{
    // Some models exchange all their rows and only say that data changed.
    if (sourceModel()->rowCount(m_root) != m_order.rowCount()) {
        resetFromSource();
        return;
    }
    if (first.parent() != m_root || !last.isValid() || rowCount() == 0)
        return;
    const bool sorts = m_sort.isActive() && first.column() <= m_sort.column &&
                       m_sort.column <= last.column() && (roles.isEmpty() || roles.contains(m_sort.role));
    const bool groups = !m_groupColumns.isEmpty() && (roles.isEmpty() || roles.contains(Qt::DisplayRole));
    if (sorts || groups)
        m_rearrange.start();
    if (m_order.isPlain()) {
        emit dataChanged(index(first.row(), first.column()), index(last.row(), last.column()), roles);
    } else if (first.row() == last.row()) {
        const int line = m_order.lineOf(first.row());
        if (line >= 0)
            emit dataChanged(index(line, first.column()), index(line, last.column()), roles);
    } else {
        emit dataChanged(index(0, first.column()), index(rowCount() - 1, last.column()), roles);
    }
}

} // namespace Qtitan
