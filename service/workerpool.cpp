#include "workerpool.h"

#include "categories.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace service {

/// A job on the stack of the thread that waits for it.
struct WorkerPool::Task
{
    const Job &job;
    std::condition_variable changed;
    bool isTaken = false;
    bool isDone = false;
    std::exception_ptr exception;
};

/// What a worker owns; lives on the stack of its thread.
struct WorkerPool::Worker
{
    std::unique_ptr<Database> database;
    std::condition_variable wake;
    Task *task = nullptr;
};

WorkerPool::WorkerPool(int threads, const QString &address, std::chrono::seconds timeLimit)
    : m_address(address)
    , m_timeLimit(timeLimit)
{
    for (int i = 0; i < threads; ++i)
        m_threads.emplace_back([this] { work(); });
}

WorkerPool::~WorkerPool()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
        for (Worker *worker : m_idle)
            worker->wake.notify_one();
    }
    for (std::thread &thread : m_threads)
        thread.join();
}

int WorkerPool::waiting() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return static_cast<int>(m_waiting.size());
}

/// Gives \a task to a worker that is idle, or lets it wait.
bool WorkerPool::hand(Task &task)
{
    if (m_idle.empty()) {
        m_waiting.push_back(&task);
        return false;
    }
    Worker *worker = m_idle.back();
    m_idle.pop_back();
    worker->task = &task;
    task.isTaken = true;
    worker->wake.notify_one();
    return true;
}

bool WorkerPool::run(const Job &job, std::chrono::milliseconds patience)
{
    Task task{job, {}, false, false, nullptr};
    std::unique_lock<std::mutex> lock(m_mutex);
    if (!hand(task) && !task.changed.wait_for(lock, patience, [&task] { return task.isTaken; })) {
        m_waiting.erase(std::find(m_waiting.begin(), m_waiting.end(), &task));
        return false;
    }
    task.changed.wait(lock, [&task] { return task.isDone; });
    if (task.exception)
        std::rethrow_exception(task.exception);
    return true;
}

/// The next task for \a worker, null at the end.
WorkerPool::Task *WorkerPool::takeTask(Worker &worker, std::unique_lock<std::mutex> &lock)
{
    if (!m_waiting.empty()) {
        Task *task = m_waiting.front();
        m_waiting.pop_front();
        task->isTaken = true;
        task->changed.notify_one();
        return task;
    }
    m_idle.push_back(&worker);
    worker.wake.wait(lock, [this, &worker] { return worker.task || m_ending; });
    return std::exchange(worker.task, nullptr);
}

Database *WorkerPool::connection(Worker &worker) const
{
    if (worker.database)
        return worker.database.get();
    auto database = std::make_unique<Database>(m_address);
    QString fault;
    if (database->open(&fault)) {
        database->connection().setTimeLimit(m_timeLimit);
        worker.database = std::move(database);
    } else {
        qCWarning(lcDatabase).noquote() << fault;
    }
    return worker.database.get();
}

void WorkerPool::carryOut(const Job &job, Worker &worker)
{
    const auto isLost = [&worker] {
        return worker.database && worker.database->lastFault().kind == DatabaseFault::Lost;
    };
    job(connection(worker));
    if (!isLost())
        return;
    // A server that was started anew has cut all connections; nobody needs to see that.
    worker.database.reset();
    if (!connection(worker))
        return;
    ++m_reconnects;
    job(connection(worker));
    if (isLost())
        worker.database.reset();
}

void WorkerPool::work()
{
    Worker worker;
    std::unique_lock<std::mutex> lock(m_mutex);
    while (Task *task = takeTask(worker, lock)) {
        lock.unlock();
        ++m_busy;
        try {
            carryOut(task->job, worker);
        } catch (...) {
            task->exception = std::current_exception();
        }
        --m_busy;
        lock.lock();
        task->isDone = true;
        task->changed.notify_one();
    }
}

} // namespace service
