#pragma once

#include "ScriptLimits.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// Looks on, on a thread of its own, while a script runs, and interrupts it at a limit. stop() may
/// be called on any thread, all else on the script's.
class ScriptWatch
{
public:
    /// \a interrupt is called on any thread, at most once.
    ScriptWatch(const ScriptLimits &limits, std::function<void()> interrupt);
    ~ScriptWatch();
    ScriptWatch(const ScriptWatch &) = delete;
    ScriptWatch &operator=(const ScriptWatch &) = delete;

    /// The script goes on, out of the calls of objects that it made; nested calls nest.
    void enterScript();
    void leaveScript();

    void stop(ScriptStop cause);
    [[nodiscard]] ScriptStop cause() const;

private:
    using Clock = std::chrono::steady_clock;

    void look();
    /// With the lock.
    [[nodiscard]] ScriptStop limitReached(Clock::time_point now);
    [[nodiscard]] bool takesTooMuch();

    const ScriptLimits m_limits;
    const std::function<void()> m_interrupt;
    const qint64 m_bytesBefore;
    mutable std::mutex m_lock; // guards all below
    std::condition_variable m_ended;
    bool m_isOver = false;
    bool m_inScript = false;
    int m_looks = 0;
    Clock::time_point m_entered;
    Clock::duration m_used{0};
    ScriptStop m_cause = ScriptStop::No;
    std::thread m_thread; // the last, so that all else is there when it begins
};
