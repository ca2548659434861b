#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

/// The thread on which a database connection lives. Jobs are done one by one, in their order.
///
/// A job that waits for a server which does not answer cannot be ended from outside. So it can be
/// given up: whoever waits for it goes on, and the thread is left to itself until the job returns.
/// A job therefore owns everything that it touches.
class LinkDbThread
{
public:
    using Job = std::function<void()>;
    /// Asks the job that runs to give up. Called repeatedly on a waiting thread, with the time
    /// since it was first called and whether stop() did that. True if nobody is to wait any longer.
    using Cancel = std::function<bool(std::chrono::milliseconds since, bool isStopped)>;

    LinkDbThread();
    /// Does what is queued, then ends. A thread that was given up is left to itself.
    ~LinkDbThread();
    LinkDbThread(const LinkDbThread &) = delete;
    LinkDbThread &operator=(const LinkDbThread &) = delete;

    /// Queues a job and does not wait.
    void post(Job job);
    /// Does a job and waits for its end. If that takes longer than a moment, a progress with the
    /// text tells of it; when the user cancels that, \a cancel is called until the job has ended or
    /// is given up. On this thread itself the job is done at once. False if it was given up, or not
    /// begun any more; jobs behind it are dropped then.
    [[nodiscard]] bool run(const QString &text, const Job &job, const Cancel &cancel);
    /// Any thread: all who wait in run() cancel, and nothing new is begun by it.
    void stop();

    /// Of all threads that were given up, one still runs. Any thread.
    [[nodiscard]] static bool isAnyLeft();

private:
    struct State;

    void giveUp();

    const std::shared_ptr<State> m_state; ///< shared with the thread
    std::thread m_thread;
    const std::thread::id m_id;
};
