#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcTerminal) ///< host.terminal: window, options, settings
Q_DECLARE_LOGGING_CATEGORY(lcPlugin)   ///< host.plugin: finding and loading plug-ins
Q_DECLARE_LOGGING_CATEGORY(lcScreens)  ///< host.screen: composite screens and their files
Q_DECLARE_LOGGING_CATEGORY(lcService)  ///< host.service: the data service that the terminal starts
