#pragma once

#include <QFileInfo>
#include <QString>

/// The demonstration data that the pages are tried on.
namespace DemoData {

inline QString database()
{
    return PROJECT_SOURCE_DIR "/build/demo/demo.sqlite";
}

inline QString views()
{
    return PROJECT_SOURCE_DIR "/demo/views";
}

inline bool isThere()
{
    return QFileInfo(database()).isFile();
}

} // namespace DemoData
