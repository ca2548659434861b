#include "LoopTurns.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <ctime>

namespace velkbench {

namespace {

constexpr int QuietTime = 200;  // ms; what is to follow, follows sooner
constexpr int Patience = 60000; // ms

double milliseconds(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

} // namespace

LoopTurns::LoopTurns()
{
    const auto *const loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::awake, this, &LoopTurns::onAwake);
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &LoopTurns::onWait);
    m_cpuBegin = milliseconds(CLOCK_THREAD_CPUTIME_ID);
}

void LoopTurns::run(const std::function<void()> &work, const std::function<bool()> &isDone)
{
    QEventLoop loop;
    QElapsedTimer sinceBegin;
    sinceBegin.start();
    QTimer look;
    connect(&look, &QTimer::timeout, &loop, [&] {
        if (!isDone || isDone() || sinceBegin.hasExpired(Patience))
            loop.quit();
    });
    m_cpuBegin = milliseconds(CLOCK_THREAD_CPUTIME_ID);
    QTimer::singleShot(0, &loop, [&] {
        work();
        look.start(QuietTime);
    });
    loop.exec();
}

void LoopTurns::onAwake()
{
    if (m_isAwake)
        return;
    m_isAwake = true;
    m_wallBegin = milliseconds(CLOCK_MONOTONIC);
}

void LoopTurns::onWait()
{
    if (m_isAwake)
        m_wall = std::max(m_wall, milliseconds(CLOCK_MONOTONIC) - m_wallBegin);
    m_isAwake = false;
    // Timers run before anybody is told of the awakening; waiting itself takes no processor time.
    const double now = milliseconds(CLOCK_THREAD_CPUTIME_ID);
    m_cpu = std::max(m_cpu, now - m_cpuBegin);
    m_cpuBegin = now;
}

} // namespace velkbench
