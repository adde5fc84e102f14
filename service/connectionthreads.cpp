#include "connectionthreads.h"

namespace service {

ConnectionThreads::ConnectionThreads(int most)
    : m_most(static_cast<std::size_t>(most))
{}

ConnectionThreads::~ConnectionThreads()
{
    shutdown();
}

void ConnectionThreads::enqueue(std::function<void()> job)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_jobs.push_back(std::move(job));
        if (m_jobs.size() > m_idle && m_threads.size() < m_most)
            m_threads.emplace_back([this] { work(); });
    }
    m_wake.notify_one();
}

void ConnectionThreads::shutdown()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_wake.notify_all();
    for (std::thread &thread : m_threads) {
        if (thread.joinable())
            thread.join();
    }
}

bool ConnectionThreads::isCrowded() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_jobs.size() > m_idle;
}

int ConnectionThreads::busy() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return static_cast<int>(m_threads.size() - m_idle);
}

void ConnectionThreads::work()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        ++m_idle;
        m_wake.wait(lock, [this] { return m_ending || !m_jobs.empty(); });
        --m_idle;
        if (m_jobs.empty())
            return;
        const std::function<void()> job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job();
        lock.lock();
    }
}

} // namespace service
