#include "metrics.h"

#include <QDateTime>
#include <QFile>
#include <QLocale>

#include <algorithm>

#include <unistd.h>

namespace service {

namespace {

const char *const EndpointNames[] = {"/bas/subject/data", "/bas/ds/data", "other"};
const char *const OutcomeNames[] = {"ok", "refused", "denied", "busy", "timeout", "failed"};

void appendHead(QByteArray &out, const char *name, const char *type, const char *help)
{
    out += QByteArray("# HELP ") + name + ' ' + help + "\n# TYPE " + name + ' ' + type + '\n';
}

void appendSample(QByteArray &out, const QByteArray &name, const QByteArray &labels, double value)
{
    out += name;
    if (!labels.isEmpty())
        out += '{' + labels + '}';
    out += ' ' + QByteArray::number(value, 'g', QLocale::FloatingPointShortest) + '\n';
}

void appendPlain(QByteArray &out, const char *name, const char *type, const char *help, double value)
{
    appendHead(out, name, type, help);
    appendSample(out, name, {}, value);
}

QByteArray endpointLabel(std::size_t endpoint)
{
    return QByteArray("endpoint=\"") + EndpointNames[endpoint] + '"';
}

/// Bytes of the process in memory; the second figure of the file counts pages.
double residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * double(::sysconf(_SC_PAGESIZE));
}

} // namespace

Outcome outcomeOf(int status)
{
    switch (status) {
    case 401:
        return Outcome::Denied;
    case 503:
        return Outcome::Busy;
    case 504:
        return Outcome::Timeout;
    default:
        return status < 400 ? Outcome::Ok : status < 500 ? Outcome::Refused : Outcome::Failed;
    }
}

Metrics::Metrics()
    : m_started(double(QDateTime::currentMSecsSinceEpoch()) / 1000)
{}

void Metrics::count(Endpoint endpoint, Outcome outcome, double seconds, qint64 rows, qint64 bytes)
{
    const auto place = static_cast<std::size_t>(endpoint);
    ++m_requests[place][static_cast<std::size_t>(outcome)];
    const auto bucket = std::lower_bound(Bounds.begin(), Bounds.end(), seconds) - Bounds.begin();
    ++m_durations[place].buckets[static_cast<std::size_t>(bucket)];
    m_durations[place].microseconds += static_cast<qint64>(seconds * 1e6);
    m_rows += rows;
    m_bytes += bytes;
}

void Metrics::appendRequests(QByteArray &out) const
{
    appendHead(out, "subject_requests_total", "counter", "Requests by endpoint and outcome.");
    for (std::size_t endpoint = 0; endpoint < EndpointCount; ++endpoint) {
        for (std::size_t outcome = 0; outcome < OutcomeCount; ++outcome)
            appendSample(out, "subject_requests_total",
                         endpointLabel(endpoint) + ",outcome=\"" + OutcomeNames[outcome] + '"',
                         double(m_requests[endpoint][outcome]));
    }
}

void Metrics::appendDurations(QByteArray &out) const
{
    const QByteArray name("subject_request_duration_seconds");
    appendHead(out, name.constData(), "histogram", "Time from the request's head to the end of the reply.");
    for (std::size_t endpoint = 0; endpoint < EndpointCount; ++endpoint) {
        const Histogram &histogram = m_durations[endpoint];
        const QByteArray label = endpointLabel(endpoint);
        qint64 count = 0;
        for (std::size_t i = 0; i < Bounds.size(); ++i) {
            count += histogram.buckets[i];
            appendSample(out, name + "_bucket", label + ",le=\"" + QByteArray::number(Bounds[i]) + '"',
                         double(count));
        }
        count += histogram.buckets.back();
        appendSample(out, name + "_bucket", label + ",le=\"+Inf\"", double(count));
        appendSample(out, name + "_sum", label, double(histogram.microseconds) / 1e6);
        appendSample(out, name + "_count", label, double(count));
    }
}

QByteArray Metrics::text(const Gauges &gauges) const
{
    QByteArray out;
    appendRequests(out);
    appendDurations(out);
    appendPlain(out, "subject_rows_sent_total", "counter", "Rows in replies.", double(m_rows));
    appendPlain(out, "subject_bytes_sent_total", "counter", "Bytes in replies before compression.",
                double(m_bytes));
    appendPlain(out, "subject_queries_running", "gauge", "Workers that answer a request.",
                gauges.workersBusy);
    appendPlain(out, "subject_pool_workers", "gauge", "Workers, each with a database connection.",
                gauges.workers);
    appendPlain(out, "subject_pool_waiting", "gauge", "Requests that wait for a worker.",
                gauges.requestsWaiting);
    appendPlain(out, "subject_connections_open", "gauge", "Connections of clients.", gauges.connections);
    appendPlain(out, "subject_database_reconnects_total", "counter", "Lost database connections found again.",
                double(gauges.reconnects));
    appendPlain(out, "process_resident_memory_bytes", "gauge", "Resident memory size in bytes.",
                residentBytes());
    appendPlain(out, "process_start_time_seconds", "gauge", "Start of the process since the epoch.",
                m_started);
    return out;
}

} // namespace service
