#include "ParallelSteps.h"

#include <core/parallel/WorkerPool.h>
#include <core/progress/PProgress.h>

namespace VelkRelease {

bool runParallelSteps(int count, const std::function<void(int)> &step, PProgress &progress)
{
    if (progress.isCanceled())
        return false;
    int told = 0;
    return WorkerPool::instance().run(count, step, [&](int done) {
        for (; told < done; ++told)
            progress.nextStep();
        return !progress.isCanceled();
    });
}

bool runParallelSteps(int count, const std::function<void(int)> &step,
                      const std::atomic<bool> &cancelled, const std::function<void(int)> &tell)
{
    const bool done = WorkerPool::instance().run(
        count,
        [&](int i) {
            if (!cancelled.load(std::memory_order_relaxed))
                step(i);
        },
        [&](int made) {
            if (tell)
                tell(made);
            return !cancelled.load(std::memory_order_relaxed);
        });
    return done && !cancelled.load();
}

} // namespace VelkRelease
