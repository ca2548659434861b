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

} // namespace VelkRelease
