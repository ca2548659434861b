#include "PProgressHandOver.h"

#include "PProgress.h"
#include "ProgressThread.h"

using Internal::progressThread;

PProgressHandOver::PProgressHandOver()
    : m_observer(PProgressObserverNode::current())
{
    const Internal::ProgressThread &thread = progressThread();
    const PProgress *const progress = thread.innermost;
    m_cancel = progress ? progress->m_cancel : thread.cancel;
    m_id = progress ? progress->m_id : thread.id;
    m_depth = progress ? progress->m_depth + 1 : thread.depth;
}

PProgressHandOver::Receiver::Receiver(const PProgressHandOver &handOver)
{
    Internal::ProgressThread &thread = progressThread();
    m_formerObserver = std::exchange(thread.observer, handOver.m_observer);
    m_formerCancel = std::exchange(thread.cancel, handOver.m_cancel);
    m_formerId = std::exchange(thread.id, handOver.m_id);
    m_formerDepth = std::exchange(thread.depth, handOver.m_depth);
}

PProgressHandOver::Receiver::~Receiver()
{
    Internal::ProgressThread &thread = progressThread();
    thread.observer = std::move(m_formerObserver);
    thread.cancel = std::move(m_formerCancel);
    thread.id = m_formerId;
    thread.depth = m_formerDepth;
}
