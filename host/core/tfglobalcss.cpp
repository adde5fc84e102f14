#include "tfcore/tfglobalcss.h"

#include "tfcore/tfcore.h"
#include "tfcorelog.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

namespace {
const char SkinFile[] = "skin.json";
const char TipsColors[] = "tipsColors";

QVector<QColor> readColors(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        qCWarning(lcCore).noquote() << path << "at byte" << error.offset << ":" << error.errorString();
        return {};
    }
    QVector<QColor> colors;
    const QJsonArray names = document.object().value(TipsColors).toArray();
    for (const QJsonValue &name : names)
        colors.append(QColor(name.toString()));
    return colors;
}
} // namespace

QColor TFGlobalCss::getTipsColorByIndex(int index)
{
    static QString readPath;
    static QVector<QColor> colors;
    const QString path = TFCore::instance()->getCurrentSkinPath(SkinFile);
    if (path != readPath) {
        colors = readColors(path);
        readPath = path;
    }
    return colors.value(index);
}
