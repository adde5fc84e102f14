#pragma once

#include <QDir>
#include <QFile>

/// The processes of this machine as the kernel tells of them.
namespace Processes {

/// What /proc has under \a name for \a process; empty where there is no such process.
inline QByteArray told(qint64 process, const QString &name)
{
    QFile file(QString("/proc/%1/%2").arg(process).arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().simplified() : QByteArray();
}

/// Those that any thread of \a process has started and that have not ended.
inline QList<qint64> children(qint64 process)
{
    QList<qint64> found;
    const QDir threads(QString("/proc/%1/task").arg(process));
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QByteArray &child : told(process, "task/" + thread + "/children").split(' ')) {
            if (!child.isEmpty())
                found.append(child.toLongLong());
        }
    }
    return found;
}

} // namespace Processes
