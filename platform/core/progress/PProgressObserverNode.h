#pragma once

#include "PProgressInfo.h"

#include <core/VelkCoreGlobal.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>

class PProgressObserverBase;

/// Place of an active observer; outlives it, so that progresses and other threads can hold it
/// without regard to the observer's end.
class VELKCORE_EXPORT PProgressObserverNode
{
public:
    PProgressObserverNode(PProgressObserverBase *observer,
                          std::shared_ptr<PProgressObserverNode> outer);

    /// Tells the observer, if it is still there. Any thread.
    void tell(PProgressEvent event, const PProgressInfo &info);
    /// Waits for calls of other threads and forgets the observer.
    void close();
    [[nodiscard]] bool isOpen() const { return m_observer != nullptr; }
    /// To be used on the observer's own thread, where nothing can end it meanwhile.
    [[nodiscard]] PProgressObserverBase *observer() const { return m_observer; }
    [[nodiscard]] const std::shared_ptr<PProgressObserverNode> &outer() const { return m_outer; }

    /// The node whose observer hears of this thread's progresses; null for none.
    [[nodiscard]] static std::shared_ptr<PProgressObserverNode> current();
    static void enterThread(const std::shared_ptr<PProgressObserverNode> &node);
    static void enterProcess(const std::shared_ptr<PProgressObserverNode> &node);

private:
    void call(PProgressEvent event, const PProgressInfo &info);

    std::atomic<PProgressObserverBase *> m_observer;
    const std::shared_ptr<PProgressObserverNode> m_outer;
    const std::thread::id m_thread;
    std::mutex m_mutex;
};
