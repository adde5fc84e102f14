#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcCore) ///< host.core: skins, plug-in base, invocations by name
