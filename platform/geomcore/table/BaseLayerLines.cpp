#include "BaseLayer.h"
#include "BaseLayerState.h"

#include <algorithm>
#include <mutex>

namespace VKTab {

LineInfo BaseLayer::getLineInfo(const LineId &) const
{
    return {};
}

QList<LineInfo> BaseLayer::getLineInfoList() const
{
    return {};
}

QVariant BaseLayer::getLineProperty(const LineId &line, LinePropId property) const
{
    if (property != LinePropHidden || !line.isValid())
        return {};
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.hidden.count(line) > 0;
}

QList<LinePropId> BaseLayer::getLineProperties() const
{
    return {LinePropHidden};
}

QVariant BaseLayer::getLineKeyValue(const LineId &line, const QString &key) const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.status.get(line, key);
}

void BaseLayer::setLineKeyValue(const LineId &line, const QString &key, const QVariant &value)
{
    {
        const std::unique_lock guard(m_shared->lock);
        if (!m_shared->state.status.set(line, key, value))
            return;
    }
    emitChanged(LayerChange::Status, line);
}

void BaseLayer::setLineKeyValues(const QVector<LineId> &lines, const QString &key,
                                 const QVariantList &values, const std::vector<quint8> &numbers)
{
    {
        const std::unique_lock guard(m_shared->lock);
        if (!m_shared->state.status.set(lines, key, values, numbers))
            return;
    }
    emitChanged(LayerChange::Status, LineId());
}

std::vector<int> BaseLayer::linesWithKeyValue(const QString &key, const QVariantList &values) const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.status.linesWith(key, values);
}

bool BaseLayer::hasLineKeyValues(const QString &key) const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.status.hasKey(key);
}

QList<LineId> BaseLayer::getHiddenLines() const
{
    const std::shared_lock guard(m_shared->lock);
    return QList<LineId>(m_shared->state.hidden.begin(), m_shared->state.hidden.end());
}

bool BaseLayer::setLineHidden(const LineId &line, bool hidden)
{
    {
        const std::unique_lock guard(m_shared->lock);
        std::set<LineId> &lines = m_shared->state.hidden;
        const bool changed =
            hidden ? line.isValid() && lines.insert(line).second : lines.erase(line) > 0;
        if (!changed)
            return false;
    }
    emitChanged(LayerChange::Lines, line);
    return true;
}

bool BaseLayer::deleteLine(const LineId &line)
{
    bool values = false;
    bool status = false;
    bool hidden = false;
    {
        const std::unique_lock guard(m_shared->lock);
        BaseLayerState &state = m_shared->state;
        values = state.values.erase(line) > 0;
        m_shared->hasValues = !state.values.empty();
        status = state.status.removeLine(line);
        hidden = state.hidden.erase(line) > 0;
    }
    if (hidden)
        emitChanged(LayerChange::Lines, line);
    if (status)
        emitChanged(LayerChange::Status, line);
    if (values)
        emitChanged(LayerChange::Values, line);
    return values || status || hidden;
}

bool BaseLayer::copyLine(const LineId &from, const LineId &to, const QList<Var> &vars,
                         bool withStatus)
{
    const auto own = [this](const Var &var) {
        return isValid(var.getVarId());
    };
    if (!from.isValid() || !to.isValid() || !std::all_of(vars.begin(), vars.end(), own))
        return false;
    copyStored(from, to, vars, withStatus);
    return true;
}

void BaseLayer::copyStored(const LineId &from, const LineId &to, const QList<Var> &vars,
                           bool withStatus)
{
    ValueMap values;
    for (const Var &var : vars)
        values[var.getVarId()] = storedValue(var.getVarId(), from).value_or(Value());
    storeValues(to, values);
    if (!withStatus)
        return;
    bool status = false;
    bool hidden = false;
    {
        const std::unique_lock guard(m_shared->lock);
        status = m_shared->state.status.copyLine(from, to);
        hidden = m_shared->state.hidden.count(from) > 0;
    }
    if (status)
        emitChanged(LayerChange::Status, to);
    setLineHidden(to, hidden);
}

Value BaseLayer::getValue(const VarId &id, const LineId &line, const LineI &) const
{
    return getValue(id, line);
}

Value BaseLayer::getValue(const VarId &id, const LineId &line) const
{
    return isValid(id) ? storedValue(id, line).value_or(Value()) : Value();
}

bool BaseLayer::isLocked(const VarId &id, const LineId &) const
{
    return !isValid(id);
}

bool BaseLayer::isDefValue(const VarId &id, const LineId &line) const
{
    return !storedValue(id, line);
}

QVariant BaseLayer::getCellProperty(const VarId &id, const LineId &line, CellPropId property) const
{
    switch (property) {
    case CellPropChanged:
        return storedValue(id, line).has_value();
    case CellPropRange:
        return getVar(id).isFW() ? getValue(id, line).toString() : QString();
    }
    return {};
}

std::optional<QString> BaseLayer::mapToVisibleValue(const VarId &, const LineId &,
                                                    const Value &) const
{
    return std::nullopt;
}

void BaseLayer::fillLineData(const LineId &line, const LineI &shown, ValueMap &values) const
{
    for (const Var &var : getVarList()) {
        const Value value = getValue(var.getVarId(), line, shown);
        if (!value.isNull())
            values[var.getVarId()] = value;
    }
}

bool BaseLayer::setValue(const VarId &id, const LineId &line, const Value &value)
{
    if (!line.isValid() || isLocked(id, line))
        return false;
    storeValues(line, {{id, value}});
    return true;
}

QHash<VarId, QStringList> BaseLayer::getRangeFilter(const LineId &) const
{
    return {};
}

bool BaseLayer::storeValues(const LineId &line, const ValueMap &values)
{
    bool changed = false;
    {
        const std::unique_lock guard(m_shared->lock);
        auto &lines = m_shared->state.values;
        ValueMap &stored = lines[line];
        for (const auto &[id, value] : values) {
            const auto old = stored.find(id);
            if (value.isNull()) {
                changed |= stored.erase(id) > 0;
            } else if (old == stored.end() || !(old->second == value)) {
                stored[id] = value;
                changed = true;
            }
        }
        if (stored.empty())
            lines.erase(line);
        m_shared->hasValues = !lines.empty();
    }
    if (changed)
        emitChanged(LayerChange::Values, line);
    return changed;
}

bool BaseLayer::hasNoValues() const
{
    return !m_shared->hasValues;
}

std::optional<Value> BaseLayer::storedValue(const VarId &id, const LineId &line) const
{
    if (hasNoValues())
        return std::nullopt;
    const std::shared_lock guard(m_shared->lock);
    const auto stored = m_shared->state.values.find(line);
    if (stored == m_shared->state.values.end())
        return std::nullopt;
    const auto value = stored->second.find(id);
    return value == stored->second.end() ? std::nullopt : std::optional<Value>(value->second);
}

QList<LineId> BaseLayer::storedLines() const
{
    const std::shared_lock guard(m_shared->lock);
    QList<LineId> lines;
    for (const auto &[line, values] : m_shared->state.values)
        lines.append(line);
    return lines;
}

LayerI::ValueMap BaseLayer::storedValues(const LineId &line) const
{
    const std::shared_lock guard(m_shared->lock);
    const auto stored = m_shared->state.values.find(line);
    return stored == m_shared->state.values.end() ? ValueMap() : stored->second;
}

} // namespace VKTab
