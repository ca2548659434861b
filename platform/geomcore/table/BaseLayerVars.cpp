#include "BaseLayer.h"
#include "BaseLayerState.h"
#include "LayerType.h"

#include <QSet>

#include <algorithm>
#include <mutex>

namespace VKTab {

QList<Var> BaseLayer::getVarList() const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.vars.list();
}

VarId BaseLayer::getVarId(QStringView name) const
{
    const std::shared_lock guard(m_shared->lock);
    const Var *var = std::as_const(m_shared->state.vars).find(name);
    return var ? var->getVarId() : VarId();
}

std::optional<Var> BaseLayer::getVar(QStringView name) const
{
    const std::shared_lock guard(m_shared->lock);
    const Var *var = std::as_const(m_shared->state.vars).find(name);
    return var ? std::optional<Var>(*var) : std::nullopt;
}

Var BaseLayer::getVar(const VarId &id) const
{
    const std::shared_lock guard(m_shared->lock);
    const Var *var = std::as_const(m_shared->state.vars).find(id);
    return var ? *var : Var();
}

bool BaseLayer::isValid(const VarId &id) const
{
    const std::shared_lock guard(m_shared->lock);
    return std::as_const(m_shared->state.vars).find(id) != nullptr;
}

QString BaseLayer::getName(const VarId &id) const
{
    return getVar(id).getName();
}

QHash<VarId, QStringList> BaseLayer::getColumnFilter() const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.columnFilter;
}

QStringList BaseLayer::getColumnFilter(const VarId &id) const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.columnFilter.value(id);
}

void BaseLayer::setColumnFilter(const VarId &id, const QStringList &texts)
{
    {
        const std::unique_lock guard(m_shared->lock);
        if (texts.isEmpty())
            m_shared->state.columnFilter.remove(id);
        else
            m_shared->state.columnFilter.insert(id, texts);
    }
    emitChanged(LayerChange::Lines);
}

QVariant BaseLayer::getVarAttribute(const VarId &id, VarAttr attribute) const
{
    const Var var = getVar(id);
    if (!var.isValid())
        return {};
    switch (attribute) {
    case VarAttrDescription:
        return var.getDescription();
    case VarAttrHidden:
        return var.isHidden();
    case VarAttrGroups:
        return var.getGroups();
    case VarAttrRangeDefault: {
        const Value value = getRangeValueCustomDefault(id);
        return value.isNull() ? QVariant() : QVariant(value.toString());
    }
    }
    return {};
}

QVariant BaseLayer::getVarProperty(const VarId &id, VarPropId property) const
{
    const Var var = getVar(id);
    if (!var.isValid())
        return {};
    switch (property) {
    case VarPropType:
        return static_cast<int>(var.getVarType());
    case VarPropDataType:
        return static_cast<int>(var.getDataType());
    case VarPropSource:
        return var.getVarSource();
    case VarPropRange:
        return var.isFW();
    case VarPropUnit:
        return var.getUnit();
    }
    return {};
}

bool BaseLayer::setVarAttribute(const VarId &id, VarAttr attribute, const QVariant &value)
{
    const std::unique_lock guard(m_shared->lock);
    Var *var = m_shared->state.vars.find(id);
    if (!var)
        return false;
    switch (attribute) {
    case VarAttrDescription:
        var->setDescription(value.toString());
        return true;
    case VarAttrHidden:
        if (!value.canConvert<bool>())
            return false;
        var->setHidden(value.toBool());
        return true;
    case VarAttrGroups:
        var->setGroups(value.toStringList());
        return true;
    case VarAttrRangeDefault:
        if (!var->isFW())
            return false;
        m_shared->state.rangeDefaults.insert(id,
                                             value.isValid() ? Value(value.toString()) : Value());
        return true;
    }
    return false;
}

bool BaseLayer::deleteVar(const VarId &id)
{
    const std::unique_lock guard(m_shared->lock);
    BaseLayerState &state = m_shared->state;
    if (!state.vars.remove(id))
        return false;
    state.columnFilter.remove(id);
    state.rangeDefaults.remove(id);
    for (auto &line : state.values)
        line.second.erase(id);
    std::erase_if(state.values, [](const auto &line) { return line.second.empty(); });
    m_shared->hasValues = !state.values.empty();
    return true;
}

void BaseLayer::addVar(const Var &var)
{
    const std::unique_lock guard(m_shared->lock);
    BaseLayerState &state = m_shared->state;
    Var added = var;
    if (!added.getVarId().isValid())
        added.setVarId(VarId(std::max(getLayerIdOffset(state.layerType), state.vars.nextId())));
    state.vars.put(added);
}

Value BaseLayer::getRangeValueCustomDefault(const VarId &id) const
{
    const std::shared_lock guard(m_shared->lock);
    return m_shared->state.rangeDefaults.value(id);
}

QStringList BaseLayer::getVarGroups() const
{
    QStringList groups;
    for (const Var &var : getVarList())
        groups += var.getGroups();
    groups.removeDuplicates();
    return groups;
}

QList<VarId> BaseLayer::evaluateColumnMapping(const QList<Var> &vars,
                                              const QHash<QString, Var> &byName,
                                              const QStringList &order,
                                              const VarPredicate &accepts) const
{
    const QString others = QStringLiteral("...");
    QSet<VarId> named;
    for (const QString &name : order) {
        const auto var = byName.constFind(name);
        if (name != others && var != byName.constEnd())
            named.insert(var->getVarId());
    }
    QList<VarId> result;
    QSet<VarId> added;
    const auto add = [&](const Var &var) {
        if ((!accepts || accepts(var)) && !added.contains(var.getVarId())) {
            added.insert(var.getVarId());
            result.append(var.getVarId());
        }
    };
    const auto addOthers = [&] {
        for (const Var &var : vars) {
            if (!named.contains(var.getVarId()))
                add(var);
        }
    };
    for (const QString &name : order) {
        if (name == others)
            addOthers();
        else if (byName.contains(name))
            add(byName.value(name));
    }
    addOthers();
    return result;
}

QMap<QString, QList<VarId>>
BaseLayer::evaluateVariableToGroupMapping(const QMap<VarId, QStringList> &groups,
                                          const QList<Var> &vars,
                                          const QHash<QString, Var> &byName) const
{
    QMap<QString, QList<VarId>> result;
    for (const Var &var : vars) {
        const auto own = groups.constFind(var.getVarId());
        const QStringList names =
            own != groups.constEnd() ? *own : byName.value(var.getName(), var).getGroups();
        for (const QString &name : names)
            result[name].append(var.getVarId());
    }
    return result;
}

} // namespace VKTab
