#include "PProgressObserverNode.h"

#include "PProgressObserverBase.h"
#include "ProgressThread.h"

namespace Internal {

ProgressThread &progressThread()
{
    thread_local ProgressThread thread;
    return thread;
}

} // namespace Internal

namespace {

struct ProcessObserver
{
    std::mutex mutex;
    std::shared_ptr<PProgressObserverNode> node;
};

/// Never destroyed: progresses may run until the very end of the process.
ProcessObserver &processObserver()
{
    static auto *const instance = new ProcessObserver;
    return *instance;
}

/// The first one whose observer is still active.
std::shared_ptr<PProgressObserverNode> firstOpen(std::shared_ptr<PProgressObserverNode> node)
{
    while (node && !node->isOpen())
        node = node->outer();
    return node;
}

} // namespace

PProgressObserverNode::PProgressObserverNode(PProgressObserverBase *observer,
                                             std::shared_ptr<PProgressObserverNode> outer)
    : m_observer(observer)
    , m_outer(std::move(outer))
    , m_thread(std::this_thread::get_id())
{
}

void PProgressObserverNode::tell(PProgressEvent event, const PProgressInfo &info)
{
    if (std::this_thread::get_id() == m_thread) {
        call(event, info);
        return;
    }
    const std::lock_guard lock(m_mutex);
    call(event, info);
}

void PProgressObserverNode::call(PProgressEvent event, const PProgressInfo &info)
{
    PProgressObserverBase *const target = m_observer;
    if (!target)
        return;
    switch (event) {
    case PProgressEvent::Started:
        target->progressStarted(info);
        break;
    case PProgressEvent::Changed:
        target->progressChanged(info);
        break;
    case PProgressEvent::Text:
        target->progressText(info);
        break;
    case PProgressEvent::Done:
        target->progressDone(info);
        break;
    }
}

void PProgressObserverNode::close()
{
    const std::lock_guard lock(m_mutex);
    m_observer = nullptr;
}

std::shared_ptr<PProgressObserverNode> PProgressObserverNode::current()
{
    std::shared_ptr<PProgressObserverNode> &own = Internal::progressThread().observer;
    own = firstOpen(own);
    if (own)
        return own;
    ProcessObserver &process = processObserver();
    const std::lock_guard lock(process.mutex);
    process.node = firstOpen(process.node);
    return process.node;
}

void PProgressObserverNode::enterThread(const std::shared_ptr<PProgressObserverNode> &node)
{
    Internal::progressThread().observer = node;
}

void PProgressObserverNode::enterProcess(const std::shared_ptr<PProgressObserverNode> &node)
{
    const std::lock_guard lock(processObserver().mutex);
    processObserver().node = node;
}
