#include "ModifyLayer.h"

#include "LayerType.h"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace VKTab {

ModifyLayer::ModifyLayer()
    : BaseLayer(modifyLayerType())
{
}

ModifyLayer::ModifyLayer(const ModifyLayer &other)
    : BaseLayer(other)
    , m_rangeVars(other.rangeVars())
{
}

ModifyLayer::~ModifyLayer() = default;

boost::shared_ptr<LayerI> ModifyLayer::clone() const
{
    return boost::make_shared<ModifyLayer>(*this);
}

bool ModifyLayer::copyLine(const LineId &from, const LineId &to, const QList<Var> &vars,
                           bool withStatus)
{
    const auto valid = [](const Var &var) {
        return var.getVarId().isValid();
    };
    if (!from.isValid() || !to.isValid() || !std::all_of(vars.begin(), vars.end(), valid))
        return false;
    copyStored(from, to, vars, withStatus);
    return true;
}

Value ModifyLayer::getValue(const VarId &id, const LineId &line) const
{
    return storedValue(id, line).value_or(Value());
}

bool ModifyLayer::isLocked(const VarId &id, const LineId &) const
{
    return !id.isValid();
}

void ModifyLayer::fillLineData(const LineId &line, const LineI &, ValueMap &values) const
{
    for (const auto &[id, value] : storedValues(line))
        values[id] = value;
}

QHash<VarId, QStringList> ModifyLayer::getRangeFilter(const LineId &line) const
{
    QHash<VarId, QStringList> filter;
    const QSet<VarId> ranges = rangeVars();
    for (const auto &[id, value] : storedValues(line)) {
        if (ranges.contains(id))
            filter.insert(id, {value.toString()});
    }
    return filter;
}

bool ModifyLayer::isValid() const
{
    return true;
}

bool ModifyLayer::setValues(const LineId &line, const ValueMap &values)
{
    return line.isValid() && storeValues(line, values);
}

bool ModifyLayer::isPlain(const LineId &line) const
{
    return isPlain() || storedValues(line).empty();
}

std::optional<Value> ModifyLayer::changedValue(const VarId &id, const LineId &line) const
{
    return storedValue(id, line);
}

QList<LineId> ModifyLayer::changedLines() const
{
    return isPlain() ? QList<LineId>() : storedLines();
}

QSet<VarId> ModifyLayer::rangeVars() const
{
    const std::lock_guard guard(m_rangeLock);
    return m_rangeVars;
}

void ModifyLayer::setRangeVars(const QSet<VarId> &vars)
{
    const std::lock_guard guard(m_rangeLock);
    m_rangeVars = vars;
}

} // namespace VKTab
