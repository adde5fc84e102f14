#pragma once

#include <QJsonValue>

class TFTreeWidgetContainer;

/// The navigation pane as data. Nodes are those that a search has left.
namespace TFTreeDescription {

QJsonObject mainTree(const TFTreeWidgetContainer &pane);
/// Null where there are no blocks.
QJsonValue blockTree(const TFTreeWidgetContainer &pane);

} // namespace TFTreeDescription
