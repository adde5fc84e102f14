#include "tfscriptguard.h"

#include <QJSEngine>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

/// The thread that watches all guards. It looks at them at each tick, so that a guard need not wake it, and
/// sleeps only when there was none for a while.
class TFScriptWatcher
{
public:
    static TFScriptWatcher &instance()
    {
        static TFScriptWatcher watcher;
        return watcher;
    }

    ~TFScriptWatcher()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_stop = true;
        }
        m_wake.notify_one();
        m_thread.join();
    }

    void add(TFScriptGuard *guard)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_guards.push_back(guard);
        if (m_asleep)
            m_wake.notify_one();
    }

    void remove(TFScriptGuard *guard)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_guards.erase(std::find(m_guards.begin(), m_guards.end(), guard));
        if (guard->m_interrupted)
            guard->m_engine->setInterrupted(false);
    }

    bool interrupted(const TFScriptGuard *guard)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return guard->m_interrupted;
    }

private:
    static constexpr std::chrono::milliseconds Tick{50};
    static constexpr int IdleTicks = 40;

    void watch()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        int idle = 0;
        while (!m_stop) {
            idle = m_guards.empty() ? idle + 1 : 0;
            m_asleep = idle > IdleTicks;
            if (m_asleep)
                m_wake.wait(lock);
            else
                m_wake.wait_for(lock, Tick);
            interruptLate();
        }
    }

    void interruptLate()
    {
        if (m_guards.empty())
            return;
        const auto now = std::chrono::steady_clock::now();
        for (TFScriptGuard *guard : m_guards) {
            if (guard->m_interrupted || now < guard->m_deadline)
                continue;
            guard->m_interrupted = true;
            guard->m_engine->setInterrupted(true);
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::vector<TFScriptGuard *> m_guards;
    bool m_asleep = false;
    bool m_stop = false;
    std::thread m_thread{&TFScriptWatcher::watch, this}; // last: it uses all of the above
};

TFScriptGuard::TFScriptGuard(QJSEngine *engine, std::chrono::milliseconds limit)
    : m_engine(engine)
    , m_deadline(std::chrono::steady_clock::now() + limit)
{
    TFScriptWatcher::instance().add(this);
}

TFScriptGuard::~TFScriptGuard()
{
    TFScriptWatcher::instance().remove(this);
}

bool TFScriptGuard::interrupted() const
{
    return TFScriptWatcher::instance().interrupted(this);
}
