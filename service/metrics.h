#pragma once

#include <QByteArray>

#include <array>
#include <atomic>

namespace service {

/// The paths that are counted apart.
enum class Endpoint { Subject, Named, Other };

/// How requests end.
enum class Outcome {
    Ok,
    Refused, ///< the client's fault
    Denied,  ///< no token, or none that is known
    Busy,    ///< no worker was free in time
    Timeout, ///< the query took too long
    Failed   ///< the database's or the service's fault
};

/// The outcome that an HTTP status stands for.
Outcome outcomeOf(int status);

/// Figures that others hold, taken at the moment when the metrics are asked for.
struct Gauges
{
    int connections = 0;
    int workers = 0;
    int workersBusy = 0;
    int requestsWaiting = 0;
    qint64 reconnects = 0;
};

/// What the service counts, and its text for a Prometheus server. For any number of threads.
class Metrics
{
public:
    Metrics();

    void count(Endpoint endpoint, Outcome outcome, double seconds, qint64 rows, qint64 bytes);

    /// All figures in the text exposition format, version 0.0.4.
    QByteArray text(const Gauges &gauges) const;

    static constexpr int EndpointCount = 3;
    static constexpr int OutcomeCount = 6;
    static constexpr std::array<double, 14> Bounds{0.001, 0.0025, 0.005, 0.01, 0.025, 0.05, 0.1,
                                                   0.25,  0.5,    1,     2.5,  5,     10,   30};

private:
    struct Histogram
    {
        std::array<std::atomic<qint64>, Bounds.size() + 1> buckets{};
        std::atomic<qint64> microseconds{0};
    };

    void appendRequests(QByteArray &out) const;
    void appendDurations(QByteArray &out) const;

    std::array<std::array<std::atomic<qint64>, OutcomeCount>, EndpointCount> m_requests{};
    std::array<Histogram, EndpointCount> m_durations;
    std::atomic<qint64> m_rows{0};
    std::atomic<qint64> m_bytes{0};
    const double m_started;
};

} // namespace service
