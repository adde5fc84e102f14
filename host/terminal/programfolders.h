#pragma once

#include <QString>
#include <QStringList>

/// Where the parts of the terminal lie: in the build folder, seen from the programs and from the tests, as well
/// as installed.
namespace ProgramFolders {

/// Folders that plug-ins are looked for in.
QStringList plugins();
/// Folder with one folder a skin, empty if there is none.
QString skins();
/// The data service beside this program.
QString serviceProgram();
/// Demonstration database and view documents, empty if there are none.
QString database();
QString views();
/// Folders of INI files: the user's own, then those that came with the program.
QStringList config();

} // namespace ProgramFolders
