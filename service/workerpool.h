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

/// Threads that query the database, each with a connection of its own for as long as it lives.
class WorkerPool
{
public:
    /// Gets the worker's connection, or null when it could not be opened; it is tried again at each job.
    using Job = std::function<void(Database *)>;

    WorkerPool(int threads, const QString &databaseFile);
    ~WorkerPool();

    /// Runs \a job on a worker and waits for its end. False, with nothing done, when none is free for
    /// \a patience. What \a job throws comes out here.
    bool run(const Job &job, std::chrono::milliseconds patience);

    int size() const { return static_cast<int>(m_threads.size()); }
    int busy() const { return m_busy; }
    int waiting() const;

private:
    struct Task;
    struct Worker;
    void work();
    Task *takeTask(Worker &worker, std::unique_lock<std::mutex> &lock);
    bool hand(Task &task);

    QString m_databaseFile;
    mutable std::mutex m_mutex;
    std::deque<Task *> m_waiting;
    std::vector<Worker *> m_idle; ///< the last one worked last: its statements and pages are warm
    std::atomic<int> m_busy{0};
    bool m_ending = false;
    std::vector<std::thread> m_threads;
};

} // namespace service
