#include "programfolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
QString beside(const QString &path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + '/' + path);
}

/// The first of \a paths, told from the program's folder, that is there.
QString firstPresent(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (QFileInfo::exists(beside(path)))
            return beside(path);
    }
    return {};
}
} // namespace

QStringList ProgramFolders::plugins()
{
    return {beside("plugins"), beside("../bin/plugins"),
            beside("../" TERMINAL_LIBDIR "/subjectpage/plugins")};
}

QString ProgramFolders::skins()
{
    return firstPresent({"skins", "../bin/skins", "../share/subjectpage/skins"});
}

QString ProgramFolders::serviceProgram()
{
    const QString found = firstPresent({"subject-service", "../bin/subject-service"});
    return found.isEmpty() ? beside("subject-service") : found;
}

QString ProgramFolders::database()
{
    return firstPresent({"../share/subjectpage/demo.sqlite", "../../demo/demo.sqlite"});
}

QString ProgramFolders::views()
{
    return firstPresent({"../share/subjectpage/views", "../../../demo/views"});
}

QStringList ProgramFolders::config()
{
    return {QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation), beside("config"),
            beside("../bin/config"), beside("../share/subjectpage/config")};
}
