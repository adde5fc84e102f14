#include "exchange.h"

namespace service {

Exchange &Exchange::current()
{
    thread_local Exchange exchange;
    return exchange;
}

void Exchange::begin()
{
    *this = Exchange();
    m_timer.start();
}

void Exchange::finish(const QString &path, int status, Metrics &metrics, AccessLog *log)
{
    // A head that is not understood ends here without a beginning.
    entry.microseconds = m_timer.isValid() ? m_timer.nsecsElapsed() / 1000 : 0;
    entry.path = path;
    entry.status = status;
    metrics.count(endpoint, outcomeOf(status), double(entry.microseconds) / 1e6, entry.rows, entry.bytes);
    if (log)
        log->write(entry);
    *this = Exchange();
}

} // namespace service
