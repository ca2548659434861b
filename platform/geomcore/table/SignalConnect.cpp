#include "SignalConnect.h"

#include "ContentSignals.h"

namespace VKTab {

SignalConnect::SignalConnect()
    : m_signals(std::make_unique<Signals>())
{
}

SignalConnect::SignalConnect(Nobody) {}
SignalConnect::~SignalConnect() = default;

boost::signals2::connection SignalConnect::connectSignalLineSelected(const LineSlot &slot,
                                                                     ConnectGroup group)
{
    return m_signals ? m_signals->lineSelected.connect(static_cast<int>(group), slot)
                     : boost::signals2::connection();
}

boost::signals2::connection SignalConnect::connectSignalLineModified(const LineSlot &slot)
{
    return m_signals ? m_signals->lineModified.connect(slot) : boost::signals2::connection();
}

boost::signals2::connection SignalConnect::connectSignalInvalidated(const InvalidateSlot &slot)
{
    return m_signals ? m_signals->invalidated.connect(slot) : boost::signals2::connection();
}

boost::signals2::connection SignalConnect::connectSignalLineStatus(const LineStatusSlot &slot)
{
    return m_signals ? m_signals->lineStatus.connect(slot) : boost::signals2::connection();
}

} // namespace VKTab
