#include "LinkDbThread.h"

#include <core/progress/PProgress.h>

namespace {

constexpr std::chrono::milliseconds quiet{300}; ///< nobody notices a wait up to this
constexpr std::chrono::milliseconds slice{50};

} // namespace

LinkDbThread::LinkDbThread()
    : m_thread([this] { work(); })
{
}

LinkDbThread::~LinkDbThread()
{
    {
        const std::lock_guard lock(m_mutex);
        m_end = true;
    }
    m_wake.notify_all();
    m_thread.join();
}

void LinkDbThread::work()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_end || !m_jobs.empty(); });
        if (m_jobs.empty())
            return;
        Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job();
        job = {};
        lock.lock();
    }
}

void LinkDbThread::post(Job job)
{
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
    }
    m_wake.notify_one();
}

void LinkDbThread::run(const QString &text, const Job &job, const Job &cancel)
{
    if (std::this_thread::get_id() == m_thread.get_id()) {
        job();
        return;
    }
    bool done = false;
    post([&] {
        job();
        const std::lock_guard lock(m_mutex);
        done = true;
        m_finished.notify_all();
    });
    const auto isDone = [&] {
        return done;
    };
    std::unique_lock lock(m_mutex);
    if (m_finished.wait_for(lock, quiet, isDone))
        return;
    lock.unlock();
    PProgress progress(0, 0, 1, true, true);
    progress.setText(text);
    while (true) {
        progress.nextStep();
        if (progress.isCanceled())
            cancel();
        lock.lock();
        if (m_finished.wait_for(lock, slice, isDone))
            return;
        lock.unlock();
    }
}
