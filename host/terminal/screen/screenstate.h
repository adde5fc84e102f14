#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>
#include <QVector>

#include <optional>
#include <vector>

/// A component as it is kept: the name that the factory knows it by, and what it saved.
struct ScreenComponent
{
    QByteArray className;
    QVariantMap state; ///< empty for a component that has saved nothing yet
};

/// One cell of a screen, or cells and further nodes side by side.
struct ScreenNode
{
    enum Kind {
        Cell,
        Row,   ///< children from left to right
        Column ///< children from top to bottom
    };

    Kind kind = Cell;
    ScreenComponent component;        ///< of a cell
    std::vector<ScreenNode> children; ///< of a row or column, two or more
    QVector<double> shares;           ///< one a child, their part of the room; the sum is 1
};

/// All that is kept of a composite screen.
struct ScreenState
{
    QString name;
    QVariantMap args;                 ///< the global arguments
    std::optional<ScreenNode> layout; ///< unset for an empty screen
};
