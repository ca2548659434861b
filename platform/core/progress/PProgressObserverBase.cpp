#include "PProgressObserverBase.h"

#include "PProgressObserverNode.h"

#include <atomic>

namespace {

std::atomic<PProgressObserverBase::Maker> makerForWaits = nullptr;

} // namespace

PProgressObserverBase::PProgressObserverBase() = default;

PProgressObserverBase::~PProgressObserverBase()
{
    PProgressObserverBase::deactivate();
}

void PProgressObserverBase::activate(int scope)
{
    if (m_node)
        return;
    m_node = std::make_shared<PProgressObserverNode>(this, PProgressObserverNode::current());
    if (scope == Process)
        PProgressObserverNode::enterProcess(m_node);
    else
        PProgressObserverNode::enterThread(m_node);
}

void PProgressObserverBase::deactivate()
{
    if (!m_node)
        return;
    m_node->close();
    m_node.reset();
    // Lets go of closed nodes.
    static_cast<void>(PProgressObserverNode::current());
}

void PProgressObserverBase::progressText(const PProgressInfo &info)
{
    progressChanged(info);
}

std::shared_ptr<PProgressObserverNode> PProgressObserverBase::outer() const
{
    return m_node ? m_node->outer() : nullptr;
}

void PProgressObserverBase::setMakerForWaits(Maker maker)
{
    makerForWaits = maker;
}

std::unique_ptr<PProgressObserverBase> PProgressObserverBase::ofWait()
{
    const Maker maker = makerForWaits;
    if (!maker || PProgressObserverNode::current())
        return nullptr;
    std::unique_ptr<PProgressObserverBase> observer = maker();
    observer->activate(Thread);
    return observer;
}
