#pragma once

class QJsonObject;
class QString;
class TFTreeWidgetContainer;

/// The user's hand on the navigation pane. Each step returns false, with the reason, where it can't be done.
namespace TFTreeSteps {

/// Clicks the node "node", a list of captions from the root down.
bool open(TFTreeWidgetContainer &pane, const QJsonObject &step, QString *reason);
/// Searches the main tree for "text".
bool search(TFTreeWidgetContainer &pane, const QJsonObject &step, QString *reason);
/// Ticks the block with the caption "block", or with "checked" false takes its tick away.
bool check(TFTreeWidgetContainer &pane, const QJsonObject &step, QString *reason);

} // namespace TFTreeSteps
