#include "screenstore.h"

#include "screenfile.h"

#include <QCollator>
#include <QDir>

#include <algorithm>

namespace {
const char Suffix[] = ".screen.json";
} // namespace

ScreenStore::ScreenStore(const QString &folder)
    : m_folder(folder)
{}

QList<ScreenStore::Entry> ScreenStore::list() const
{
    QList<Entry> entries;
    const QFileInfoList files = QDir(m_folder).entryInfoList({QString('*') + Suffix}, QDir::Files);
    for (const QFileInfo &info : files) {
        const ScreenFormat::Reading reading = ScreenFile(info.filePath()).load();
        const QString name = reading.state.name.isEmpty() ? info.baseName() : reading.state.name;
        entries.append({info.absoluteFilePath(), name, info.lastModified(), !reading.problems.isEmpty()});
    }
    QCollator collator;
    collator.setNumericMode(true);
    std::stable_sort(entries.begin(), entries.end(), [&collator](const Entry &a, const Entry &b) {
        return collator.compare(a.name, b.name) < 0;
    });
    return entries;
}

QString ScreenStore::freePath(const QStringList &taken) const
{
    for (int i = 1;; ++i) {
        const QString path = QDir(m_folder).absoluteFilePath(QString("screen-%1%2").arg(i).arg(Suffix));
        if (!QFile::exists(path) && !taken.contains(path))
            return path;
    }
}

QString ScreenStore::rename(const QString &path, const QString &name)
{
    ScreenFile file(path);
    ScreenState state = file.load().state;
    state.name = name;
    return file.save(state);
}

QString ScreenStore::remove(const QString &path)
{
    QFile file(path);
    return file.remove() ? QString() : QString("%1: %2").arg(path, file.errorString());
}
