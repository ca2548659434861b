#include "BaseLayer.h"

#include "BaseLayerState.h"
#include "LayerType.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <mutex>

namespace VKTab {

BaseLayer::BaseLayer()
    : m_shared(std::make_unique<BaseLayerShared>())
{
}

BaseLayer::BaseLayer(int layerType)
    : BaseLayer()
{
    m_shared->state.layerType = layerType;
}

BaseLayer::BaseLayer(const BaseLayer &other)
    : LayerI(other)
    , m_shared(std::make_unique<BaseLayerShared>())
{
    const std::shared_lock guard(other.m_shared->lock);
    m_shared->state = other.m_shared->state;
    m_shared->hasValues = other.m_shared->hasValues.load();
}

BaseLayer::~BaseLayer() = default;

boost::shared_ptr<LayerI> BaseLayer::clone() const
{
    return boost::make_shared<BaseLayer>(*this);
}

void BaseLayer::reset()
{
    {
        const std::unique_lock guard(m_shared->lock);
        m_shared->state.values.clear();
        m_shared->state.hidden.clear();
        m_shared->state.status = {};
        m_shared->hasValues = false;
    }
    emitChanged(LayerChange::Lines);
    emitChanged(LayerChange::Status);
    emitChanged(LayerChange::Values);
}

int BaseLayer::getLayerType() const
{
    const std::shared_lock guard(m_shared->lock);
    const BaseLayerState &state = m_shared->state;
    if (state.layerType != 0 || state.vars.list().isEmpty())
        return state.layerType;
    return state.vars.list().first().getVarSource();
}

QVariant BaseLayer::getKeyValue(KeyValueId id) const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.keyValues.value(id);
}

QVariant BaseLayer::getKeyValue(const QString &name) const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.attributes.value(name);
}

void BaseLayer::setKeyValue(KeyValueId id, const QVariant &value)
{
    const std::unique_lock guard(m_shared->lock);
    m_shared->state.keyValues.insert(id, value);
}

void BaseLayer::setKeyValue(const QString &name, const QVariant &value)
{
    const std::unique_lock guard(m_shared->lock);
    m_shared->state.attributes.insert(name, value);
}

QList<FilterCondition> BaseLayer::getFilterConditions() const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.conditions;
}

boost::shared_ptr<FilterBase> BaseLayer::getFilter(const QList<FilterCondition> &,
                                                   const Content &) const
{
    return {};
}

void BaseLayer::addFilterCondition(const FilterCondition &condition)
{
    {
        const std::unique_lock guard(m_shared->lock);
        m_shared->state.conditions.append(condition);
    }
    emitChanged(LayerChange::Lines);
}

void BaseLayer::removeFilterCondition(const QString &name)
{
    {
        const std::unique_lock guard(m_shared->lock);
        const auto removed = m_shared->state.conditions.removeIf(
            [&](const FilterCondition &condition) { return condition.name == name; });
        if (removed == 0)
            return;
    }
    emitChanged(LayerChange::Lines);
}

QString BaseLayer::translateText(const QString &text, const VarId &) const
{
    return text;
}

LayerI::ChangeSignal &BaseLayer::signalChanged()
{
    return m_shared->changed;
}

void BaseLayer::updateVariableStructure()
{
    emitChanged(LayerChange::Columns);
}

bool BaseLayer::isValid() const
{
    const std::shared_lock guard(m_shared->lock);
    return !m_shared->state.vars.list().isEmpty();
}

void BaseLayer::emitChanged(LayerChange::Kind kind, const LineId &line)
{
    m_shared->changed({kind, line});
}

} // namespace VKTab
