#include "ParallelSteps.h"

#include <core/progress/PProgress.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace VelkRelease {

namespace {

class Run
{
public:
    Run(int count, const std::function<void(int)> &step)
        : m_count(count)
        , m_step(step)
    {
    }

    /// Makes steps until there are none; \a afterStep says whether to go on.
    template<typename AfterStep>
    void work(AfterStep afterStep)
    {
        for (int i = m_next++; i < m_count; i = m_next++) {
            m_step(i);
            ++m_done;
            if (!afterStep(m_done.load()))
                m_next = m_count;
        }
    }
    [[nodiscard]] int done() const { return m_done; }

private:
    const int m_count;
    const std::function<void(int)> &m_step;
    std::atomic<int> m_next = 0;
    std::atomic<int> m_done = 0;
};

} // namespace

bool runParallelSteps(int count, const std::function<void(int)> &step, PProgress &progress)
{
    Run run(count, step);
    int told = 0;
    const auto tell = [&](int done) {
        for (; told < done; ++told)
            progress.nextStep();
        return !progress.isCanceled();
    };
    {
        std::vector<std::jthread> helpers;
        const int cores = int(std::max(1U, std::thread::hardware_concurrency()));
        for (int i = 1; i < std::min(cores, count); ++i)
            helpers.emplace_back([&run] { run.work([](int) { return true; }); });
        run.work(tell);
    }
    return tell(run.done());
}

} // namespace VelkRelease
