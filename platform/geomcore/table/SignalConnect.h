#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "Content.h"
#include <geomcore/value/LineId.h>
#include <geomcore/value/TableEnums.h>

#include <boost/signals2/connection.hpp>

#include <functional>
#include <memory>

namespace VKTab {

class ContentData;

/// Where to listen to a table. Listeners are called on the table's thread; a connection is kept for
/// as long as its listener lives. Connecting and dropping are safe on any thread.
class VELKGEOMCORE_EXPORT SignalConnect
{
public:
    /// The result is not used.
    using LineSlot = std::function<int(const Content &, const LineId &, bool)>;
    using InvalidateSlot = std::function<void(const Content &, Content::InvalidateFlags)>;
    using LineStatusSlot = std::function<void(const Content &, const LineId &)>;

    /// Tells nobody and keeps no listener.
    struct Nobody
    {
    };

    SignalConnect();
    explicit SignalConnect(Nobody);
    SignalConnect(const SignalConnect &) = delete;
    SignalConnect &operator=(const SignalConnect &) = delete;
    ~SignalConnect();

    /// The bool is true for the line that became selected and false for the one that no longer is;
    /// the table's selection is the new one in both calls. Lower groups are called first.
    boost::signals2::connection connectSignalLineSelected(const LineSlot &slot, ConnectGroup group);
    /// Cells of a line changed. The bool is true while the line shows changed cells and false when
    /// it went back to those of the file. Status key values are no cells.
    boost::signals2::connection connectSignalLineModified(const LineSlot &slot);
    /// The table was invalidated: values, columns or filter are to be read anew.
    boost::signals2::connection connectSignalInvalidated(const InvalidateSlot &slot);
    /// A status key value of a line changed; an invalid id stands for all lines.
    boost::signals2::connection connectSignalLineStatus(const LineStatusSlot &slot);

private:
    friend class ContentData;
    struct Signals;
    std::unique_ptr<Signals> m_signals; // null if it tells nobody
};

} // namespace VKTab
