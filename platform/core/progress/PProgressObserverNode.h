#pragma once

#include "PProgressInfo.h"

#include <core/VelkCoreGlobal.h>

#include <mutex>
#include <thread>

class PProgressObserverBase;

/// Place of an active observer; outlives it, so that progresses and other threads can hold it
/// without regard to the observer's end.
class VELKCORE_EXPORT PProgressObserverNode
{
public:
    enum class Event { Started, Changed, Text, Done };

    PProgressObserverNode(PProgressObserverBase *observer,
                          std::shared_ptr<PProgressObserverNode> outer);

    /// Tells the observer, if it is still there.
    void tell(Event event, const PProgressInfo &info);
    /// Waits for calls of other threads and forgets the observer.
    void close();
    /// The observer's own thread only, where nothing can end it meanwhile.
    [[nodiscard]] PProgressObserverBase *observer() const { return m_observer; }
    [[nodiscard]] const std::shared_ptr<PProgressObserverNode> &outer() const { return m_outer; }

    /// The node whose observer hears of this thread's progresses; null for none.
    [[nodiscard]] static std::shared_ptr<PProgressObserverNode> current();

private:
    void call(Event event, const PProgressInfo &info);

    PProgressObserverBase *m_observer;
    const std::shared_ptr<PProgressObserverNode> m_outer;
    const std::thread::id m_thread;
    std::mutex m_mutex;
};
