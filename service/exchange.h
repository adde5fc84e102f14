#pragma once

#include "accesslog.h"
#include "metrics.h"

#include <QElapsedTimer>

namespace service {

/// One request and its answer, from the head of the one to the last byte of the other, as log and metrics
/// want it. A thread has one at a time.
class Exchange
{
public:
    /// The exchange of the calling thread.
    static Exchange &current();

    /// A request's head is there.
    void begin();

    /// The answer to \a path is sent with \a status: counts and logs it, and forgets it.
    void finish(const QString &path, int status, Metrics &metrics, AccessLog *log);

    AccessEntry entry; ///< filled in on the way
    Endpoint endpoint = Endpoint::Other;

private:
    QElapsedTimer m_timer;
};

} // namespace service
