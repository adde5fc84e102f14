#pragma once

class QJsonArray;

namespace Bench {

constexpr int NavigationRoot = 2;
constexpr int NavigationChildren = 20; ///< of the root and of each node that has any

/// That many rows of a navigation tree, each after its parent.
QJsonArray navigation(int rows);

} // namespace Bench
