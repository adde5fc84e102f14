#pragma once

#include "database.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace service {

/// Threads that query the database, each with a connection of its own for as long as it lives. A connection
/// that is lost is replaced by a new one.
class WorkerPool
{
public:
    /// Gets the worker's connection, or null when it could not be opened; it is tried again at each job. Runs
    /// a second time when the connection was lost meanwhile.
    using Job = std::function<void(Database *)>;

    /// \a address as Database takes it; \a timeLimit is that of each statement.
    WorkerPool(int threads, const QString &address, std::chrono::seconds timeLimit);
    ~WorkerPool();

    /// Runs \a job on a worker and waits for its end. False, with nothing done, when none is free for
    /// \a patience. What \a job throws comes out here.
    bool run(const Job &job, std::chrono::milliseconds patience);

    int size() const { return static_cast<int>(m_threads.size()); }
    int busy() const { return m_busy; }
    int waiting() const;

    /// Lost connections that were replaced.
    int reconnects() const { return m_reconnects; }

private:
    struct Task;
    struct Worker;
    void work();
    Task *takeTask(Worker &worker, std::unique_lock<std::mutex> &lock);
    bool hand(Task &task);
    Database *connection(Worker &worker) const;
    void carryOut(const Job &job, Worker &worker);

    const QString m_address;
    const std::chrono::seconds m_timeLimit;
    mutable std::mutex m_mutex;
    std::deque<Task *> m_waiting;
    std::vector<Worker *> m_idle; ///< the last one worked last: its statements and pages are warm
    std::atomic<int> m_busy{0};
    std::atomic<int> m_reconnects{0};
    bool m_ending = false;
    std::vector<std::thread> m_threads;
};

} // namespace service
