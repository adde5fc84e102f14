#include "tftreefilterproxymodel.h"

#include <QVector>

TFTreeFilterProxyModel::TFTreeFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{}

bool TFTreeFilterProxyModel::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QAbstractItemModel *source = sourceModel();
    // Without recursion, since a tree may be deeper than the stack.
    QVector<QModelIndex> pending{source->index(row, 0, parent)};
    while (!pending.isEmpty()) {
        const QModelIndex index = pending.takeLast();
        const int children = source->rowCount(index);
        if (children == 0 && QSortFilterProxyModel::filterAcceptsRow(index.row(), index.parent()))
            return true;
        for (int child = children - 1; child >= 0; --child)
            pending.append(source->index(child, 0, index));
    }
    return false;
}
