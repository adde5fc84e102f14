#pragma once

class QString;

namespace TFDecimalFormat {

/// Number of decimals that \a formatString asks for: the codes "n0" to "n20" in any case give their number,
/// every other text gives 2.
int precision(const QString &formatString);

} // namespace TFDecimalFormat
