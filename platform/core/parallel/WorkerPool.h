#pragma once

#include <core/VelkCoreGlobal.h>

#include <functional>
#include <memory>

/// The threads of this process that share work. Whoever has pieces of work that are independent of
/// each other runs them here, also from inside a piece: the calling thread always works itself, and
/// threads that have nothing else to do help it, so that nested calls neither wait for each other
/// nor start more threads than there are cores.
class VELKCORE_EXPORT WorkerPool
{
public:
    /// The one of this process. Its threads start at the first call that needs them and end with
    /// the process.
    static WorkerPool &instance();

    WorkerPool();
    ~WorkerPool();
    WorkerPool(const WorkerPool &) = delete;
    WorkerPool &operator=(const WorkerPool &) = delete;

    /// How many threads work at once, the calling one included; 0 for one a core. Not while work
    /// runs.
    void setThreads(int count);
    [[nodiscard]] int threads() const;

    /// Calls \a step with 0 to \a count - 1, in no certain order and on several threads at once,
    /// and returns when all have been made. \a step throws nothing. Any thread.
    void run(int count, const std::function<void(int)> &step);

    /// As above; besides, \a tell is called on the calling thread with the number of steps made: at
    /// the begin, at least after each of its own steps, and at the end. If it answers false, no
    /// further step is begun. True if all steps were made.
    [[nodiscard]] bool run(int count, const std::function<void(int)> &step,
                           const std::function<bool(int)> &tell);

private:
    struct Job;
    struct Private;
    std::unique_ptr<Private> d;
};
