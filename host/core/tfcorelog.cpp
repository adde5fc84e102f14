#include "tfcorelog.h"

Q_LOGGING_CATEGORY(lcCore, "host.core", QtInfoMsg)
