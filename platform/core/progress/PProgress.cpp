#include "PProgress.h"

#include "PProgressObserverNode.h"
#include "ProgressThread.h"

#include <cmath>
#include <limits>

using namespace std::chrono_literals;
using Internal::progressThread;

namespace {

std::atomic<std::chrono::milliseconds> s_interval{50ms};
/// The clock is read every so many steps at most, less often the faster they are.
constexpr qint64 MaximalStride = 16;
constexpr auto ShortStride = 1ms;
constexpr auto LongStride = 10ms;

quint64 nextId()
{
    static std::atomic<quint64> last{0};
    return last.fetch_add(1, std::memory_order_relaxed) + 1;
}

qint64 stepsBetween(double from, double to, double step)
{
    constexpr double Largest = 9e18;
    constexpr double Slack = 1e-9; // 0.3 / 0.1 are three steps
    const double steps = std::ceil((to - from) / step - Slack);
    if (!(steps < Largest)) // also no number at all
        return -1;
    return steps > 0 ? qint64(steps) : 0;
}

} // namespace

PProgress::PProgress(double from, double to, double step, bool cancellable, bool indeterminate)
    : m_from(from)
    , m_to(to)
    , m_step(step)
    , m_total(indeterminate ? -1 : stepsBetween(from, to, step))
    , m_cancellable(cancellable)
    , m_id(nextId())
    , m_observer(PProgressObserverNode::current())
{
    enterThread();
    if (!m_observer) {
        m_untilCheck = std::numeric_limits<qint64>::max();
        return;
    }
    m_untilCheck = 1;
    m_begin = m_lastTold = m_lastCheck = Clock::now();
    tell(PProgressEvent::Started, m_begin);
}

PProgress::~PProgress()
{
    done();
}

void PProgress::setInterval(std::chrono::milliseconds interval)
{
    s_interval = interval;
}

void PProgress::enterThread()
{
    Internal::ProgressThread &thread = progressThread();
    m_outer = thread.innermost;
    m_outerId = m_outer ? m_outer->m_id : thread.id;
    m_depth = m_outer ? m_outer->m_depth + 1 : thread.depth;
    m_cancel = std::make_shared<PProgressCancel>(m_cancellable,
                                                 m_outer ? m_outer->m_cancel : thread.cancel);
    thread.innermost = this;
}

void PProgress::leaveThread()
{
    PProgress **link = &progressThread().innermost;
    while (*link && *link != this)
        link = &(*link)->m_outer;
    Q_ASSERT_X(*link, "PProgress", "ended on another thread");
    if (*link)
        *link = m_outer;
}

void PProgress::setText(const QString &text)
{
    if (!m_observer) {
        m_text = text;
        return;
    }
    if (m_done || m_text == text)
        return;
    m_text = text;
    const auto now = Clock::now();
    m_textPending = m_textTold && now - m_lastTold < s_interval.load();
    if (!m_textPending)
        tell(PProgressEvent::Text, now);
    m_textTold = true;
}

void PProgress::check()
{
    if (m_done) {
        m_untilCheck = std::numeric_limits<qint64>::max();
        return;
    }
    const auto now = Clock::now();
    if (m_count == 1 || m_count == m_total || now - m_lastTold >= s_interval.load())
        tell(m_textPending ? PProgressEvent::Text : PProgressEvent::Changed, now);
    adaptStride(now);
    const qint64 rest = m_total - m_count;
    m_untilCheck = rest > 0 ? qMin(m_stride, rest) : m_stride;
}

void PProgress::adaptStride(Clock::time_point now)
{
    const auto taken = now - m_lastCheck;
    m_lastCheck = now;
    if (taken < ShortStride)
        m_stride = qMin(m_stride * 2, MaximalStride);
    else if (taken > LongStride)
        m_stride = 1;
}

void PProgress::tell(PProgressEvent event, Clock::time_point now)
{
    m_textPending = false;
    m_lastTold = now;
    m_observer->tell(event, info(now));
}

void PProgress::done()
{
    if (m_done)
        return;
    m_done = true;
    if (m_observer)
        tell(PProgressEvent::Done, Clock::now());
    leaveThread();
}

PProgressInfo PProgress::info(Clock::time_point now) const
{
    PProgressInfo info;
    info.id = m_id;
    info.outer = m_outerId;
    info.depth = m_depth;
    info.text = m_text;
    info.count = m_count;
    info.total = m_total;
    info.elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(now - m_begin).count();
    if (info.elapsed > 0)
        info.rate = double(m_count) * 1000 / double(info.elapsed);
    if (m_total >= 0 && m_count >= m_total)
        info.remaining = 0;
    else if (m_total >= 0 && info.rate > 0)
        info.remaining = qint64(double(m_total - m_count) * 1000 / info.rate);
    info.cancellable = m_cancellable;
    info.cancel = m_cancel;
    return info;
}
