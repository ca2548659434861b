#include "LinkDbThread.h"

#include <core/progress/PProgress.h>
#include <core/progress/PProgressObserverBase.h>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>

namespace {

constexpr std::chrono::milliseconds quiet{300}; ///< nobody notices a wait up to this
constexpr std::chrono::milliseconds slice{50};
constexpr std::chrono::milliseconds lastWords{2000}; ///< of one that was stopped

std::atomic<int> threadsLeft = 0;

} // namespace

struct LinkDbThread::State
{
    /// Of the thread.
    void work();

    std::mutex mutex; ///< over all below
    std::condition_variable wake;
    std::condition_variable finished;
    std::deque<Job> jobs;
    bool isBusy = false;
    bool end = false;
    bool isStopped = false;
    bool isGivenUp = false;
};

void LinkDbThread::State::work()
{
    std::unique_lock lock(mutex);
    while (true) {
        wake.wait(lock, [this] { return end || !jobs.empty(); });
        if (jobs.empty())
            return;
        Job job = std::move(jobs.front());
        jobs.pop_front();
        isBusy = true;
        lock.unlock();
        job();
        job = {};
        lock.lock();
        isBusy = false;
        finished.notify_all();
        if (isGivenUp)
            return;
    }
}

LinkDbThread::LinkDbThread()
    : m_state(std::make_shared<State>())
    , m_thread([state = m_state] {
        state->work();
        if (state->isGivenUp)
            --threadsLeft;
    })
    , m_id(m_thread.get_id())
{
}

LinkDbThread::~LinkDbThread()
{
    bool isStuck = false;
    {
        std::unique_lock lock(m_state->mutex);
        m_state->end = true;
        m_state->wake.notify_all();
        isStuck = m_state->isStopped && !m_state->isGivenUp &&
                  !m_state->finished.wait_for(lock, lastWords, [this] {
                      return !m_state->isBusy && m_state->jobs.empty();
                  });
    }
    if (isStuck)
        giveUp();
    if (m_thread.joinable())
        m_thread.join();
}

void LinkDbThread::post(Job job)
{
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->jobs.push_back(std::move(job));
    }
    m_state->wake.notify_one();
}

bool LinkDbThread::run(const QString &text, const Job &job, const Cancel &cancel)
{
    using Clock = std::chrono::steady_clock;
    if (std::this_thread::get_id() == m_id) {
        job();
        return true;
    }
    State &state = *m_state;
    std::unique_lock lock(state.mutex);
    if (state.isStopped || state.isGivenUp)
        return false;
    const auto done = std::make_shared<bool>(false);
    state.jobs.emplace_back([shared = m_state, job, done] {
        job();
        const std::lock_guard guard(shared->mutex);
        *done = true;
        shared->finished.notify_all();
    });
    state.wake.notify_one();
    const auto isOver = [&] {
        return *done || state.isGivenUp;
    };
    if (state.finished.wait_for(lock, quiet, [&] { return isOver() || state.isStopped; }) &&
        isOver())
        return *done;
    lock.unlock();
    const std::unique_ptr<PProgressObserverBase> display = PProgressObserverBase::ofWait();
    PProgress progress(0, 0, 1, true, true);
    progress.setText(text);
    std::optional<Clock::time_point> first;
    while (true) {
        progress.nextStep();
        lock.lock();
        const bool isStopped = state.isStopped;
        lock.unlock();
        if (isStopped || progress.isCanceled()) {
            const Clock::time_point now = Clock::now();
            first = first.value_or(now);
            if (cancel(std::chrono::duration_cast<std::chrono::milliseconds>(now - *first),
                       isStopped))
                giveUp();
        }
        lock.lock();
        if (state.finished.wait_for(lock, slice, isOver))
            return *done;
        lock.unlock();
    }
}

void LinkDbThread::giveUp()
{
    std::deque<Job> dropped; // with what they own, outside of the lock
    const std::lock_guard lock(m_state->mutex);
    if (m_state->isGivenUp || !m_state->isBusy)
        return;
    m_state->isGivenUp = true;
    dropped.swap(m_state->jobs);
    ++threadsLeft;
    m_thread.detach();
    m_state->finished.notify_all();
}

void LinkDbThread::stop()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->isStopped = true;
    m_state->finished.notify_all();
}

bool LinkDbThread::isAnyLeft()
{
    return threadsLeft > 0;
}
