#pragma once

#include "Content.h"
#include "FilterBase.h"
#include "LayerI.h"
#include "LineOrder.h"
#include "SignalConnect.h"
#include <geomcore/value/LineId.h>

#include <boost/shared_ptr.hpp>
#include <boost/signals2/connection.hpp>

#include <QMap>

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

namespace VKTab {

class ContentStructure;
class TabOptions;

/// What all handles of a table share. Readers on any thread take what they need under a lock and
/// then work on immutable objects; listeners are called without a lock.
class ContentData : public std::enable_shared_from_this<ContentData>
{
public:
    ContentData();
    ~ContentData();
    ContentData(const ContentData &) = delete;
    ContentData &operator=(const ContentData &) = delete;

    /// Never null.
    [[nodiscard]] std::shared_ptr<const ContentStructure> structure() const;
    /// The visible lines, evaluated anew if filters changed since the last time. Never null.
    [[nodiscard]] std::shared_ptr<const LineOrder> order() const;

    [[nodiscard]] boost::shared_ptr<TabOptions> options() const;
    void setOptions(const boost::shared_ptr<TabOptions> &options);
    [[nodiscard]] LineId selection() const;
    bool setSelection(const LineId &id, bool notify);
    [[nodiscard]] FilterBase filter(const QString &className) const;
    void setFilter(const FilterBase &filter);
    void invalidate(Content::InvalidateFlags flags, bool notify);
    void addLayer(const LayerI &layer);
    void setFileLayer(const boost::shared_ptr<FileLayer> &layer);

    [[nodiscard]] SignalConnect &signalConnect() { return m_signals; }

private:
    [[nodiscard]] Content handle() const;
    [[nodiscard]] std::shared_ptr<const LineOrder> evaluateFilters() const;
    void setStructure(const std::shared_ptr<const ContentStructure> &structure);
    void rebuildStructure();
    void connectLayers(const ContentStructure &structure);
    void onLayerChanged(const LayerI *layer, const LayerChange &change);
    void onValuesChanged(const LayerI *layer, const LineId &line);
    void onStatusChanged(const LineId &line);
    void emitSelected(const LineId &id, bool selected);

    mutable std::mutex m_lock; // guards the next four
    std::shared_ptr<const ContentStructure> m_structure;
    boost::shared_ptr<TabOptions> m_options;
    LineId m_selection;
    QMap<QString, FilterBase> m_filters;

    std::atomic<int> m_filterState = 1; // counts changes
    mutable std::mutex m_orderLock;     // guards the next two
    mutable std::shared_ptr<const LineOrder> m_order;
    mutable int m_orderState = 0; // the filter state that the order was made for

    SignalConnect m_signals;
    std::vector<boost::signals2::scoped_connection> m_layerConnections;
};

} // namespace VKTab
