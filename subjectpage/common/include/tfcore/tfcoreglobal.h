#pragma once

#include <QtGlobal>

/// Marks what the host's libraries export to plug-ins.
#define TFCORE_EXPORT Q_DECL_EXPORT
