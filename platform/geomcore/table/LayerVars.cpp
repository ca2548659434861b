#include "LayerVars.h"

#include <algorithm>

namespace VKTab {

const Var *LayerVars::find(const VarId &id) const
{
    const auto place = m_byId.constFind(id);
    return place == m_byId.cend() ? nullptr : &m_vars.at(*place);
}

const Var *LayerVars::find(QStringView name) const
{
    const auto place = m_byName.constFind(name.toString());
    return place == m_byName.cend() ? nullptr : &m_vars.at(*place);
}

Var *LayerVars::find(const VarId &id)
{
    const auto place = m_byId.constFind(id);
    return place == m_byId.cend() ? nullptr : &m_vars[*place];
}

void LayerVars::put(const Var &var)
{
    m_nextId = std::max(m_nextId, var.getVarId().value() + 1);
    if (Var *known = find(var.getVarId())) {
        const bool renamed = known->getName() != var.getName();
        *known = var;
        if (renamed)
            index();
        return;
    }
    m_byId.insert(var.getVarId(), m_vars.size());
    if (!m_byName.contains(var.getName()))
        m_byName.insert(var.getName(), m_vars.size());
    m_vars.append(var);
}

bool LayerVars::remove(const VarId &id)
{
    const auto place = m_byId.constFind(id);
    if (place == m_byId.cend())
        return false;
    m_vars.removeAt(*place);
    index();
    return true;
}

void LayerVars::index()
{
    m_byId.clear();
    m_byName.clear();
    for (qsizetype i = 0; i < m_vars.size(); ++i) {
        m_byId.insert(m_vars.at(i).getVarId(), i);
        if (!m_byName.contains(m_vars.at(i).getName()))
            m_byName.insert(m_vars.at(i).getName(), i);
    }
}

} // namespace VKTab
