#include "ContentData.h"

#include "ContentSignals.h"
#include "ContentStructure.h"
#include "LineFilters.h"
#include "TabOptions.h"

#include <boost/make_shared.hpp>

namespace VKTab {

ContentData::ContentData()
    : m_structure(std::make_shared<ContentStructure>())
{
    connectLayers(*m_structure);
}

ContentData::~ContentData() = default;

Content ContentData::handle() const
{
    return Content(const_cast<ContentData *>(this)->shared_from_this());
}

std::shared_ptr<const ContentStructure> ContentData::structure() const
{
    const std::lock_guard guard(m_lock);
    return m_structure;
}

std::shared_ptr<const LineOrder> ContentData::order() const
{
    const int state = m_filterState;
    {
        const std::lock_guard guard(m_orderLock);
        if (state == m_orderState)
            return m_order;
    }
    // Without a lock: rules and layers may be anybody's.
    const auto made = evaluateFilters();
    const std::lock_guard guard(m_orderLock);
    if (m_orderState < state) {
        m_order = made;
        m_orderState = state;
    }
    return made;
}

std::shared_ptr<const LineOrder> ContentData::evaluateFilters() const
{
    LineFilters filters(handle(), structure());
    {
        const std::lock_guard guard(m_lock);
        for (const FilterBase &filter : m_filters)
            filters.add(filter);
    }
    return filters.evaluate();
}

boost::shared_ptr<TabOptions> ContentData::options() const
{
    const std::lock_guard guard(m_lock);
    return m_options;
}

void ContentData::setOptions(const boost::shared_ptr<TabOptions> &options)
{
    const std::lock_guard guard(m_lock);
    m_options = options;
}

LineId ContentData::selection() const
{
    const std::lock_guard guard(m_lock);
    return m_selection;
}

bool ContentData::setSelection(const LineId &id, bool notify)
{
    const auto self = shared_from_this(); // a listener may let go of the last reference
    const LineId selected = structure()->lineInfo(id).getLineId();
    if (id.isValid() && !selected.isValid())
        return false;
    LineId former;
    {
        const std::lock_guard guard(m_lock);
        former = std::exchange(m_selection, selected);
    }
    if (!notify || former == selected)
        return true;
    if (former.isValid())
        emitSelected(former, false);
    // A listener may have selected another line and told everybody.
    if (selected.isValid() && selection() == selected)
        emitSelected(selected, true);
    return true;
}

FilterBase ContentData::filter(const QString &className) const
{
    const std::lock_guard guard(m_lock);
    return m_filters.value(className);
}

void ContentData::setFilter(const FilterBase &filter)
{
    if (!filter.rule())
        return;
    {
        const std::lock_guard guard(m_lock);
        m_filters.insert(filter.getClassName(), FilterBase(filter.rule()));
    }
    ++m_filterState;
}

void ContentData::invalidate(Content::InvalidateFlags flags, bool notify)
{
    const auto self = shared_from_this();
    if (flags.testFlag(Content::InvalidateColumns))
        rebuildStructure();
    if (flags & (Content::InvalidateValues | Content::InvalidateFilter))
        ++m_filterState;
    if (notify)
        m_signals.m_signals->invalidated(handle(), flags);
}

void ContentData::addLayer(const LayerI &layer)
{
    const auto self = shared_from_this();
    const auto current = structure();
    auto layers = current->added();
    const boost::shared_ptr<LayerI> added = layer.clone();
    std::erase_if(layers, [&](const boost::shared_ptr<LayerI> &other) {
        return other->getLayerType() == added->getLayerType();
    });
    layers.push_back(added);
    setStructure(std::make_shared<const ContentStructure>(current->file(), current->modify(),
                                                          std::move(layers)));
    m_signals.m_signals->invalidated(handle(), Content::InvalidateColumns);
}

void ContentData::setFileLayer(const boost::shared_ptr<FileLayer> &layer)
{
    const auto self = shared_from_this();
    {
        const std::lock_guard guard(m_lock);
        m_selection = LineId();
        m_filters.clear();
    }
    setStructure(std::make_shared<const ContentStructure>(
        layer, boost::make_shared<ModifyLayer>(), std::vector<boost::shared_ptr<LayerI>>()));
    m_signals.m_signals->invalidated(handle(), Content::InvalidateValues |
                                                   Content::InvalidateColumns |
                                                   Content::InvalidateFilter);
}

void ContentData::rebuildStructure()
{
    const auto current = structure();
    setStructure(std::make_shared<const ContentStructure>(current->file(), current->modify(),
                                                          current->added()));
}

void ContentData::setStructure(const std::shared_ptr<const ContentStructure> &structure)
{
    {
        const std::lock_guard guard(m_lock);
        m_structure = structure;
    }
    ++m_filterState;
    connectLayers(*structure);
}

void ContentData::connectLayers(const ContentStructure &structure)
{
    m_layerConnections.clear();
    for (const auto &layer : structure.allLayers()) {
        const LayerI *source = layer.get();
        m_layerConnections.emplace_back(layer->signalChanged().connect(
            [this, source](const LayerChange &change) { onLayerChanged(source, change); }));
    }
}

void ContentData::onLayerChanged(const LayerI *layer, const LayerChange &change)
{
    const auto self = shared_from_this();
    switch (change.kind) {
    case LayerChange::Values:
        onValuesChanged(layer, change.line);
        break;
    case LayerChange::Status:
        onStatusChanged(change.line);
        break;
    case LayerChange::Lines:
        ++m_filterState;
        break;
    case LayerChange::Columns:
        invalidate(Content::InvalidateColumns, true);
        break;
    }
}

void ContentData::onValuesChanged(const LayerI *layer, const LineId &line)
{
    const auto modify = structure()->modify();
    if (!line.isValid())
        invalidate(Content::InvalidateValues, true);
    else if (layer == modify.get())
        m_signals.m_signals->lineModified(handle(), line, !modify->isPlain(line));
    else
        onStatusChanged(line);
}

void ContentData::onStatusChanged(const LineId &line)
{
    if (!m_signals.m_signals->lineStatus.empty())
        m_signals.m_signals->lineStatus(handle(), line);
}

void ContentData::emitSelected(const LineId &id, bool selected)
{
    m_signals.m_signals->lineSelected(handle(), id, selected);
}

} // namespace VKTab
