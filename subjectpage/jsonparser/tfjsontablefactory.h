#pragma once

#include <memory>

class TFBaseJsonTable;

namespace TFJsonTableFactory {

/// A new, empty table of that id; null for an id without a table. The only place that makes tables by id.
std::unique_ptr<TFBaseJsonTable> create(int tableId);

} // namespace TFJsonTableFactory
