#pragma once

#include "database.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace service {

/// Threads that serve connections, each with a database connection of its own for as long as it lives.
class WorkerPool
{
public:
    WorkerPool(int threads, const QString &databaseFile);
    ~WorkerPool();

    void enqueue(std::function<void()> job);

    /// Finishes what waits and ends the threads.
    void shutdown();

    /// The connection of the calling worker. Null when it could not be opened; it is tried again at each
    /// call.
    static Database *currentDatabase();

private:
    void work();

    QString m_databaseFile;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_jobs;
    bool m_ending = false;
    std::vector<std::thread> m_threads;
};

} // namespace service
