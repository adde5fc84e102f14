#pragma once

#include <QString>

class QJsonObject;
class QPixmap;

/// The files that rendering writes. Each is made beside its name and takes it when it is whole.
namespace RenderFiles {

/// Writes "name.png" and "name.json" into \a folder. Returns why that did not work, or an empty text.
QString write(const QString &folder, const QString &name, const QPixmap &picture,
              const QJsonObject &description);

} // namespace RenderFiles
