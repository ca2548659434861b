#pragma once

#include <QObject>

#include <functional>

namespace velkbench {

/// Longest turns of this thread's event loop: from waking up until it waits again. Without a turn's
/// end nothing is painted and no key is taken. Needs a dispatcher that tells both, so QT_NO_GLIB
/// has to be set before there is an application.
class LoopTurns : public QObject
{
public:
    LoopTurns();

    /// Does it in a turn of its own, then runs the loop until \a isDone and nothing more happened
    /// for a while.
    void run(const std::function<void()> &work, const std::function<bool()> &isDone = {});

    /// Milliseconds of the longest turn so far, by the clock and by processor time of the thread.
    [[nodiscard]] double wall() const { return m_wall; }
    [[nodiscard]] double cpu() const { return m_cpu; }

private:
    void onAwake();
    void onWait();

    bool m_isAwake = false;
    double m_wallBegin = 0;
    double m_cpuBegin = 0;
    double m_wall = 0;
    double m_cpu = 0;
};

} // namespace velkbench
