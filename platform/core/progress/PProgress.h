#pragma once

#include "PProgressInfo.h"

#include <core/VelkCoreGlobal.h>

#include <chrono>

class PProgressObserverNode;

/// Tells the observers how far a piece of work has come. Used on the thread that makes it; one made
/// while another of the same thread runs is nested in that. The observer is the one that is active
/// at construction; without any nextStep() costs next to nothing.
///
/// Observers hear of the beginning, of the first and the last step and of the end, else of one
/// state every 50 ms at most.
class VELKCORE_EXPORT PProgress
{
public:
    /// Runs from `from` to `to` in steps of `step`. An indeterminate one has no known end. One that
    /// is not cancellable never hears of a request to cancel.
    PProgress(double from, double to, double step = 1.0, bool cancellable = false,
              bool indeterminate = false);
    /// Ends it if done() was not called.
    ~PProgress();
    PProgress(const PProgress &) = delete;
    PProgress &operator=(const PProgress &) = delete;

    void setText(const QString &text);
    void nextStep()
    {
        ++m_count;
        if (--m_untilCheck == 0)
            check();
    }
    /// True if somebody wants this progress, or one round it, to be broken off.
    [[nodiscard]] bool isCanceled() const { return m_cancellable && m_cancel->isRequested(); }
    /// The work has ended, at its end or before. Later steps are not told.
    void done();

    /// Any thread.
    void requestCancel() { m_cancel->request(); }

    /// For the whole process; 50 ms at first. Any thread.
    static void setInterval(std::chrono::milliseconds interval);

    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] double from() const { return m_from; }
    [[nodiscard]] double to() const { return m_to; }
    [[nodiscard]] double step() const { return m_step; }
    /// Steps done.
    [[nodiscard]] qint64 count() const { return m_count; }
    /// Steps in all, -1 if not known.
    [[nodiscard]] qint64 total() const { return m_total; }
    /// from() and the steps done since.
    [[nodiscard]] double position() const { return m_from + double(m_count) * m_step; }
    [[nodiscard]] bool isIndeterminate() const { return m_total < 0; }
    [[nodiscard]] bool isDone() const { return m_done; }

private:
    friend class PProgressHandOver;
    using Clock = std::chrono::steady_clock;

    void check();
    void tell(PProgressEvent event, Clock::time_point now);
    void adaptStride(Clock::time_point now);
    [[nodiscard]] PProgressInfo info(Clock::time_point now) const;
    void enterThread();
    void leaveThread();

    qint64 m_count = 0;
    qint64 m_untilCheck = 0;
    const double m_from;
    const double m_to;
    const double m_step;
    const qint64 m_total;
    const bool m_cancellable;
    bool m_done = false;
    bool m_textPending = false;
    bool m_textTold = false;
    int m_depth = 0;
    qint64 m_stride = 1;
    quint64 m_id = 0;
    quint64 m_outerId = 0;
    PProgress *m_outer = nullptr;
    QString m_text;
    std::shared_ptr<PProgressCancel> m_cancel;
    std::shared_ptr<PProgressObserverNode> m_observer;
    Clock::time_point m_begin;
    Clock::time_point m_lastTold;
    Clock::time_point m_lastCheck;
};
