#pragma once

#include <QString>

/// Reading of a skin's style sheets.
namespace TFStyleSheet {

/// Text of the style sheet file \a path with its relative url(...) turned into absolute ones, since the
/// toolkit would look for them in the working directory. A relative address is looked for beside the file
/// first, then in \a skinFolder. Null text if the file can't be read.
QString read(const QString &path, const QString &skinFolder);

} // namespace TFStyleSheet
