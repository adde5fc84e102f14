#include "terminallog.h"

Q_LOGGING_CATEGORY(lcTerminal, "host.terminal", QtInfoMsg)
Q_LOGGING_CATEGORY(lcPlugin, "host.plugin", QtInfoMsg)
Q_LOGGING_CATEGORY(lcScreens, "host.screen", QtInfoMsg)
Q_LOGGING_CATEGORY(lcService, "host.service", QtInfoMsg)
