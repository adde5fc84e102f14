#pragma once

#include <QDateTime>

#include <functional>

/// The one place from which time-dependent functions take the present.
namespace TFClock {

/// The current local date and time, or what the set function gives.
QDateTime now();

/// Replaces the present; an empty function restores the real one. User-interface thread only.
void setNow(std::function<QDateTime()> now);

} // namespace TFClock
