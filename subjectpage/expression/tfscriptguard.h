#pragma once

class QJSEngine;

/// Ends a script that runs too long: while a guard lives, a watching thread interrupts the engine once the
/// time is over, and the evaluation returns an error.
///
/// Cheap enough for one guard an evaluation. Guards may nest on one thread; the outermost one counts. The
/// interruption is taken back when the guard ends.
class TFScriptGuard
{
public:
    /// Milliseconds that one evaluation may take; exact to about 100 ms.
    static constexpr int DefaultLimit = 1000;

    explicit TFScriptGuard(QJSEngine *engine, int limit = DefaultLimit);
    ~TFScriptGuard();
    TFScriptGuard(const TFScriptGuard &) = delete;
    TFScriptGuard &operator=(const TFScriptGuard &) = delete;

    /// True once the engine was interrupted.
    bool interrupted() const;

private:
    QJSEngine *m_engine;
    bool m_armed;
};
