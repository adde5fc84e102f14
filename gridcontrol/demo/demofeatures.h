#pragma once

#include <QString>
#include <QVector>

namespace Qtitan {
class Grid;
}
class QuoteModel;

/// One thing that the grid does, set up to be looked at.
struct Feature
{
    QString name;  ///< for the command line
    QString title; ///< for the list in the window
    void (*show)(Qtitan::Grid &grid, QuoteModel &model);
};

/// In the order of the list. "copy" leaves what it copied on the clipboard.
const QVector<Feature> &features();
