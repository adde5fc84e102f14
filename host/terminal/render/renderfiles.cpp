#include "renderfiles.h"

#include <QBuffer>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QSaveFile>

namespace {
QString writeWhole(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return {};
    return path + ": " + file.errorString();
}

QByteArray asPng(const QPixmap &picture)
{
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return content;
}
} // namespace

QString RenderFiles::write(const QString &folder, const QString &name, const QPixmap &picture,
                           const QJsonObject &description)
{
    const QDir dir(folder);
    if (!dir.mkpath("."))
        return "the folder can't be made: " + folder;
    const QString fault = writeWhole(dir.filePath(name + ".png"), asPng(picture));
    return fault.isEmpty() ? writeWhole(dir.filePath(name + ".json"),
                                        QJsonDocument(description).toJson(QJsonDocument::Indented))
                           : fault;
}
