#pragma once

#include <chrono>

class QJSEngine;

/// Ends a script that runs too long: while a guard lives, a watching thread interrupts the engine once the
/// time is over, and the evaluation returns an error.
///
/// Cheap enough for one guard an evaluation. Any number may live at once, on any threads. The interruption is
/// taken back when the guard ends.
class TFScriptGuard
{
public:
    /// How long one evaluation may take; exact to about 50 ms.
    static constexpr std::chrono::milliseconds DefaultLimit{1000};

    explicit TFScriptGuard(QJSEngine *engine, std::chrono::milliseconds limit = DefaultLimit);
    ~TFScriptGuard();
    TFScriptGuard(const TFScriptGuard &) = delete;
    TFScriptGuard &operator=(const TFScriptGuard &) = delete;

    /// True once the engine was interrupted.
    bool interrupted() const;

private:
    friend class TFScriptWatcher;

    QJSEngine *m_engine;
    std::chrono::steady_clock::time_point m_deadline;
    bool m_interrupted = false; ///< guarded by the watcher's mutex
};
