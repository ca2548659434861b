#pragma once

#include <QString>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// The thread on which a database connection lives. Jobs are done one by one, in their order.
class LinkDbThread
{
public:
    using Job = std::function<void()>;

    LinkDbThread();
    /// Does what is queued, then ends.
    ~LinkDbThread();
    LinkDbThread(const LinkDbThread &) = delete;
    LinkDbThread &operator=(const LinkDbThread &) = delete;

    /// Queues a job and does not wait.
    void post(Job job);
    /// Does a job and waits for its end. If that takes longer than a moment, a progress with the
    /// text tells of it; when the user cancels that, \a cancel is called, repeatedly, on the
    /// waiting thread, and the wait goes on until the job has given up. On this thread itself the
    /// job is done at once.
    void run(const QString &text, const Job &job, const Job &cancel);

private:
    void work();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_finished;
    std::deque<Job> m_jobs;
    bool m_end = false;
    std::thread m_thread;
};
