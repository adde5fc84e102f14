#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace service {

/// Threads for connections, made when they are needed. Most of them wait most of the time, for a client or
/// for a worker that queries the database.
class ConnectionThreads
{
public:
    /// At most \a most threads; further jobs wait.
    explicit ConnectionThreads(int most);
    ~ConnectionThreads();

    void enqueue(std::function<void()> job);

    /// Finishes what waits and ends the threads.
    void shutdown();

    /// Whether jobs wait for a thread.
    bool isCrowded() const;

    /// Threads that have a job.
    int busy() const;

private:
    void work();

    const std::size_t m_most;
    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_jobs;
    std::vector<std::thread> m_threads;
    std::size_t m_idle = 0;
    bool m_ending = false;
};

} // namespace service
