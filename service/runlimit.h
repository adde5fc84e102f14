#pragma once

#include <atomic>
#include <chrono>

namespace service {

/// Whether the statement that runs has to end: its time is over, or another thread asks for it.
class RunLimit
{
public:
    enum State { Running, TimedOut, Cancelled };

    /// Time of each later statement; zero is no limit.
    void setTime(std::chrono::milliseconds time) { m_time = time; }

    /// A statement starts.
    void begin()
    {
        m_cancelled = false;
        m_end = Clock::now() + m_time;
    }

    /// Ends the statement. From any thread.
    void cancel() { m_cancelled = true; }

    State state() const
    {
        if (m_cancelled)
            return Cancelled;
        return m_time.count() > 0 && Clock::now() >= m_end ? TimedOut : Running;
    }

private:
    using Clock = std::chrono::steady_clock;
    std::chrono::milliseconds m_time{0};
    Clock::time_point m_end;
    std::atomic<bool> m_cancelled{false};
};

} // namespace service
