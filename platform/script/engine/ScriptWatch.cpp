#include "ScriptWatch.h"

#include <QFile>

#include <utility>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

constexpr std::chrono::milliseconds interval{20};
constexpr int looksPerMemory = 5;

/// Of this process; 0 where that cannot be told.
qint64 residentBytes()
{
#ifdef Q_OS_LINUX
    QFile file(QStringLiteral("/proc/self/statm"));
    if (file.open(QIODevice::ReadOnly))
        return file.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
#endif
    return 0;
}

} // namespace

ScriptWatch::ScriptWatch(const ScriptLimits &limits, std::function<void()> interrupt)
    : m_limits(limits)
    , m_interrupt(std::move(interrupt))
    , m_bytesBefore(limits.bytes > 0 ? residentBytes() : 0)
    , m_thread([this] { look(); })
{
}

ScriptWatch::~ScriptWatch()
{
    {
        const std::lock_guard guard(m_lock);
        m_isOver = true;
    }
    m_ended.notify_one();
    m_thread.join();
}

void ScriptWatch::enterScript()
{
    const std::lock_guard guard(m_lock);
    m_inScript = true;
    m_entered = Clock::now();
}

void ScriptWatch::leaveScript()
{
    const std::lock_guard guard(m_lock);
    if (m_inScript)
        m_used += Clock::now() - m_entered;
    m_inScript = false;
}

void ScriptWatch::stop(ScriptStop cause)
{
    {
        const std::lock_guard guard(m_lock);
        if (m_cause != ScriptStop::No)
            return;
        m_cause = cause;
    }
    m_interrupt();
}

ScriptStop ScriptWatch::cause() const
{
    const std::lock_guard guard(m_lock);
    return m_cause;
}

void ScriptWatch::look()
{
    std::unique_lock guard(m_lock);
    while (!m_ended.wait_for(guard, interval, [this] { return m_isOver; })) {
        const ScriptStop cause = limitReached(Clock::now());
        if (cause == ScriptStop::No)
            continue;
        guard.unlock();
        stop(cause);
        guard.lock();
    }
}

ScriptStop ScriptWatch::limitReached(Clock::time_point now)
{
    if (m_limits.wish && *m_limits.wish)
        return ScriptStop::ByHand;
    const auto silent = m_inScript ? now - m_entered : Clock::duration(0);
    if (m_limits.silent.count() > 0 && silent > m_limits.silent)
        return ScriptStop::SilentTime;
    if (m_limits.total.count() > 0 && m_used + silent > m_limits.total)
        return ScriptStop::TotalTime;
    return takesTooMuch() ? ScriptStop::Memory : ScriptStop::No;
}

bool ScriptWatch::takesTooMuch()
{
    if (m_limits.bytes == 0 || ++m_looks % looksPerMemory != 0)
        return false;
    return residentBytes() - m_bytesBefore > m_limits.bytes;
}
