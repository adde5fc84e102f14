#pragma once

#include <QSortFilterProxyModel>

/// The proxy between the rows of the sort dialog and its table. It shows them as they come.
class TFCustomSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;
};
