#include "tfstylesheet.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {
QString absoluteUrl(const QString &url, const QDir &sheetFolder, const QDir &skinFolder)
{
    if (url.isEmpty() || url.startsWith(':') || url.contains("://") || QDir::isAbsolutePath(url))
        return url;
    const QString beside = QDir::cleanPath(sheetFolder.absoluteFilePath(url));
    return QFileInfo::exists(beside) ? beside : QDir::cleanPath(skinFolder.absoluteFilePath(url));
}
} // namespace

QString TFStyleSheet::read(const QString &path, const QString &skinFolder)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.readAll());
    const QDir sheetFolder = QFileInfo(path).absoluteDir();
    static const QRegularExpression urlPattern(R"(url\(\s*["']?([^"')]*?)["']?\s*\))");

    QString resolved("");
    int end = 0;
    for (auto it = urlPattern.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        resolved += text.midRef(end, match.capturedStart() - end);
        resolved += "url(\"" + absoluteUrl(match.captured(1), sheetFolder, QDir(skinFolder)) + "\")";
        end = match.capturedEnd();
    }
    resolved += text.midRef(end);
    return resolved;
}
