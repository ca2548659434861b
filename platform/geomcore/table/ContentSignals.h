#pragma once

#include "SignalConnect.h"

#include <boost/signals2/signal.hpp>

namespace VKTab {

struct SignalConnect::Signals
{
    using LineSignal = boost::signals2::signal<int(const Content &, const LineId &, bool)>;

    LineSignal lineSelected;
    LineSignal lineModified;
    boost::signals2::signal<void(const Content &, Content::InvalidateFlags)> invalidated;
    boost::signals2::signal<void(const Content &, const LineId &)> lineStatus;
};

} // namespace VKTab
