#pragma once

#include <QStringList>

namespace service {

/// The program: reads the command line, loads the views, serves until SIGTERM or SIGINT.
///
/// Has to run on the main thread before any other is started, with a QCoreApplication in place.
/// \return exit status: 0 served (or checked without a fault), 1 a fault, 2 wrong usage
int runService(const QStringList &arguments);

} // namespace service
