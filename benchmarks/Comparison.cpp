#include "Comparison.h"

#include <atomic>
#include <chrono>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <thread>
#include <unistd.h>

namespace velkbench {

namespace {

double now(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

void keepBest(Seconds &best, const Seconds &seconds)
{
    if (best.wall == 0 || seconds.wall < best.wall)
        best.wall = seconds.wall;
    if (best.cpu == 0 || seconds.cpu < best.cpu)
        best.cpu = seconds.cpu;
}

long anonymousPages()
{
    std::ifstream file("/proc/self/statm");
    long size = 0;
    long resident = 0;
    long shared = 0;
    file >> size >> resident >> shared;
    return resident - shared;
}

} // namespace

Seconds measure(const std::function<void()> &work)
{
    const double cpu = now(CLOCK_PROCESS_CPUTIME_ID);
    const double wall = now(CLOCK_MONOTONIC);
    work();
    return {now(CLOCK_MONOTONIC) - wall, now(CLOCK_PROCESS_CPUTIME_ID) - cpu};
}

void Comparison::addReference(const std::string &name, std::function<void()> work)
{
    m_references.push_back({name, std::move(work), {}});
}

void Comparison::run(benchmark::State &state, const std::function<void()> &product,
                     const std::function<void()> &prepare)
{
    for ([[maybe_unused]] const auto _ : state) {
        for (Reference &reference : m_references)
            keepBest(reference.best, measure(reference.work));
        if (prepare)
            prepare();
        const Seconds seconds = measure(product);
        keepBest(m_product, seconds);
        state.SetIterationTime(seconds.wall);
    }
    for (const Reference &reference : m_references) {
        state.counters["vs_" + reference.name] = m_product.cpu / reference.best.cpu;
        state.counters["wall_vs_" + reference.name] = m_product.wall / reference.best.wall;
        state.counters["ms_" + reference.name] = reference.best.cpu * 1e3;
    }
    state.counters["ms_best"] = m_product.cpu * 1e3;
}

struct PeakMemory::Sampler
{
    std::atomic<bool> stop = false;
    std::atomic<long> peak = 0;
    long begin = 0;
    std::thread thread;

    void sample()
    {
        while (!stop) {
            const long pages = anonymousPages();
            if (pages > peak)
                peak = pages;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
};

PeakMemory::PeakMemory()
    : m_sampler(new Sampler)
{
    malloc_trim(0);
    m_sampler->begin = anonymousPages();
    m_sampler->thread = std::thread([this] { m_sampler->sample(); });
}

PeakMemory::~PeakMemory()
{
    m_sampler->stop = true;
    m_sampler->thread.join();
    delete m_sampler;
}

double PeakMemory::peak() const
{
    return double(std::max(m_sampler->peak.load(), anonymousPages()) - m_sampler->begin) *
           double(sysconf(_SC_PAGESIZE));
}

} // namespace velkbench
