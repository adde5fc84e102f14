#pragma once

class QString;

/// The one table from an operator of the configuration to the service's word for it.
namespace TFFilterOperators {

/// ">=", ">", "<", "<=", "=", "<>", "LIKE", "IN", "NotIn", "and" and "or", compared with case; "==" for any
/// other word.
QString serviceWord(const QString &configured);

} // namespace TFFilterOperators
