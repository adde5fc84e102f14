#pragma once

#include <QSortFilterProxyModel>

/// Keeps the leaves that match the filter and the folders above them; a folder's own match isn't enough.
class TFTreeFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit TFTreeFilterProxyModel(QObject *parent = nullptr);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
};
