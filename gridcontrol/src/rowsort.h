#pragma once

#include <QAbstractItemModel>
#include <QLocale>

#include <vector>

namespace Qtitan {

/// What orders the rows.
struct SortOrder
{
    int column = -1; ///< of the model; below 0 for the order of the model
    int role = Qt::DisplayRole;
    bool descending = false;
    bool localeAware = false;
    QLocale locale;

    bool isActive() const { return column >= 0; }
};

/// Sorts \a rows, rows of \a model below \a root. Stable; numbers, dates and times by value and before texts,
/// missing values (invalid, empty, not a number) last in both directions. Reads each value once; texts are
/// ranked once, so that no comparison builds or looks at a string.
void sortRows(std::vector<int> &rows, const QAbstractItemModel &model, const QModelIndex &root,
              const SortOrder &order);

} // namespace Qtitan
