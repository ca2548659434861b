#pragma once

#include <core/VelkCoreGlobal.h>

#include <QMetaType>
#include <QString>

#include <atomic>
#include <memory>

/// The wish to break off a progress. Whoever sees the progress may request it, from any thread; the
/// work asks PProgress::isCanceled().
class VELKCORE_EXPORT PProgressCancel
{
public:
    /// A request to one that is not allowed has no effect.
    PProgressCancel(bool allowed, std::shared_ptr<const PProgressCancel> outer)
        : m_allowed(allowed)
        , m_outer(std::move(outer))
    {
    }
    void request() { m_requested.store(m_allowed, std::memory_order_relaxed); }
    /// Requested here or for a progress round it.
    [[nodiscard]] bool isRequested() const
    {
        return m_requested.load(std::memory_order_relaxed) || (m_outer && m_outer->isRequested());
    }

private:
    std::atomic<bool> m_requested{false};
    const bool m_allowed;
    const std::shared_ptr<const PProgressCancel> m_outer;
};

enum class PProgressEvent { Started, Changed, Text, Done };

/// State of a progress at one moment, a value for observers.
struct PProgressInfo
{
    quint64 id = 0;    ///< never 0 for a progress, unique in the process
    quint64 outer = 0; ///< the progress round it, 0 for none
    int depth = 0;     ///< 0 for an outermost one
    QString text;
    qint64 count = 0;      ///< steps done
    qint64 total = -1;     ///< steps in all, -1 if not known
    qint64 elapsed = 0;    ///< milliseconds since it began
    double rate = 0;       ///< steps per second on average
    qint64 remaining = -1; ///< estimate in milliseconds, -1 if not known
    bool cancellable = false;
    std::shared_ptr<PProgressCancel> cancel; ///< never null for a progress
};
Q_DECLARE_METATYPE(PProgressInfo)
