#include "ErpLayer.h"

#include "LayerType.h"

#include <boost/make_shared.hpp>

namespace VKTab {

ErpLayer::ErpLayer(std::shared_ptr<ErpDataSourceI> source)
    : BaseLayer(erpLayerType())
    , m_source(std::move(source))
{
    if (!m_source)
        return;
    for (Var var : m_source->columns()) {
        var.setVarId(VarId());
        var.setVarSource(erpLayerType());
        addVar(var);
    }
}

ErpLayer::ErpLayer(const ErpLayer &other) = default;
ErpLayer::~ErpLayer() = default;

boost::shared_ptr<LayerI> ErpLayer::clone() const
{
    return boost::make_shared<ErpLayer>(*this);
}

bool ErpLayer::isLocked(const VarId &, const LineId &) const
{
    return true;
}

int ErpLayer::updatePLMInfo(int lineId)
{
    return updatePLMInfo(LineId(lineId));
}

int ErpLayer::updatePLMInfo(const LineId &line)
{
    const auto fetched = m_source && line.isValid() ? m_source->values(line) : std::nullopt;
    if (!fetched)
        return -1;
    ValueMap values;
    int changed = 0;
    for (const Var &var : getVarList()) {
        const Value value = fetched->value(var.getName());
        changed += value == getValue(var.getVarId(), line) ? 0 : 1;
        values[var.getVarId()] = value;
    }
    storeValues(line, values);
    return changed;
}

} // namespace VKTab
