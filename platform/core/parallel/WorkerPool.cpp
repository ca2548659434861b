#include "WorkerPool.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

struct WorkerPool::Job
{
    Job(int steps, const std::function<void(int)> &work)
        : count(steps)
        , step(work)
    {
    }

    /// Makes the next step; false if none is left.
    bool work()
    {
        const int i = next.fetch_add(1);
        if (i >= count)
            return false;
        step(i);
        done.fetch_add(1);
        return true;
    }
    [[nodiscard]] bool isLeft() const { return next.load() < count; }

    const int count;
    const std::function<void(int)> &step;
    std::atomic<int> next{0};
    std::atomic<int> done{0};
    int helpers = 0; ///< Guarded by the pool's mutex.
};

struct WorkerPool::Private
{
    void start();
    void stop();
    void help();
    [[nodiscard]] Job *findWork() const;
    void leave(Job &job, std::unique_lock<std::mutex> &lock);

    mutable std::mutex mutex;
    std::condition_variable wanted;   ///< There is work, or the pool ends.
    std::condition_variable finished; ///< A helper left a job or made a step of it.
    std::vector<Job *> jobs;
    std::vector<std::thread> threads;
    int count = 0;
    bool ends = false;
};

void WorkerPool::Private::start()
{
    while (int(threads.size()) + 1 < count)
        threads.emplace_back([this] { help(); });
}

void WorkerPool::Private::stop()
{
    {
        const std::lock_guard lock(mutex);
        ends = true;
    }
    wanted.notify_all();
    for (std::thread &thread : threads)
        thread.join();
    threads.clear();
    ends = false;
}

// The latest job first: whoever made it holds up the earlier ones.
WorkerPool::Job *WorkerPool::Private::findWork() const
{
    const auto found =
        std::find_if(jobs.rbegin(), jobs.rend(), [](const Job *job) { return job->isLeft(); });
    return found == jobs.rend() ? nullptr : *found;
}

void WorkerPool::Private::help()
{
    std::unique_lock lock(mutex);
    while (!ends) {
        Job *const job = findWork();
        if (!job) {
            wanted.wait(lock);
            continue;
        }
        ++job->helpers;
        lock.unlock();
        while (job->work())
            finished.notify_all();
        lock.lock();
        --job->helpers;
        finished.notify_all();
    }
}

void WorkerPool::Private::leave(Job &job, std::unique_lock<std::mutex> &lock)
{
    jobs.erase(std::find(jobs.begin(), jobs.end(), &job));
    finished.wait(lock, [&job] { return job.helpers == 0; });
}

WorkerPool &WorkerPool::instance()
{
    static WorkerPool pool;
    return pool;
}

WorkerPool::WorkerPool()
    : d(std::make_unique<Private>())
{
    setThreads(0);
}

WorkerPool::~WorkerPool()
{
    d->stop();
}

void WorkerPool::setThreads(int count)
{
    d->stop();
    d->count = count > 0 ? count : std::max(1, int(std::thread::hardware_concurrency()));
}

int WorkerPool::threads() const
{
    return d->count;
}

void WorkerPool::run(int count, const std::function<void(int)> &step)
{
    (void)run(count, step, [](int) { return true; });
}

bool WorkerPool::run(int count, const std::function<void(int)> &step,
                     const std::function<bool(int)> &tell)
{
    if (!tell(0))
        return count == 0;
    Job job(count, step);
    const bool shared = count > 1 && d->count > 1;
    if (shared) {
        const std::lock_guard lock(d->mutex);
        d->start();
        d->jobs.push_back(&job);
        d->wanted.notify_all();
    }
    while (job.work()) {
        if (!tell(job.done.load()))
            job.next = count;
    }
    if (!shared)
        return job.done == count;
    std::unique_lock lock(d->mutex);
    while (job.helpers > 0) {
        const int told = job.done;
        lock.unlock();
        const bool goOn = tell(told);
        lock.lock();
        if (!goOn)
            job.next = count;
        if (job.helpers > 0 && job.done == told)
            d->finished.wait_for(lock, std::chrono::milliseconds(50));
    }
    d->leave(job, lock);
    lock.unlock();
    return tell(job.done) && job.done == count;
}
