#pragma once

#include <QtGlobal>

namespace service {

/// What one request may cost. A request beyond a limit is refused with a message that names it.
struct Limits
{
    qint64 bodyBytes = 1024 * 1024; ///< of a request's body
    int rows = 100000;              ///< of a reply, paged or not
    int seconds = 30;               ///< of a query, and of the wait for a free worker
    int filterDepth = 32;           ///< of a filter's parentheses
};

} // namespace service
