#include "workerpool.h"

#include "categories.h"

namespace service {

namespace {

/// What a worker thread owns; lives on its stack.
struct WorkerState
{
    QString databaseFile;
    std::unique_ptr<Database> database;
};

thread_local WorkerState *t_state = nullptr;

} // namespace

WorkerPool::WorkerPool(int threads, const QString &databaseFile)
    : m_databaseFile(databaseFile)
{
    for (int i = 0; i < threads; ++i)
        m_threads.emplace_back([this] { work(); });
}

WorkerPool::~WorkerPool()
{
    shutdown();
}

void WorkerPool::enqueue(std::function<void()> job)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_jobs.push_back(std::move(job));
    }
    m_wake.notify_one();
}

void WorkerPool::shutdown()
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

Database *WorkerPool::currentDatabase()
{
    if (t_state->database)
        return t_state->database.get();
    auto database = std::make_unique<Database>(t_state->databaseFile);
    QString fault;
    if (!database->open(&fault)) {
        qCWarning(lcDatabase).noquote() << fault;
        return nullptr;
    }
    t_state->database = std::move(database);
    return t_state->database.get();
}

void WorkerPool::work()
{
    WorkerState state{m_databaseFile, nullptr};
    t_state = &state;
    for (;;) {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_wake.wait(lock, [this] { return m_ending || !m_jobs.empty(); });
        if (m_jobs.empty())
            break;
        const std::function<void()> job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job();
    }
    t_state = nullptr;
}

} // namespace service
