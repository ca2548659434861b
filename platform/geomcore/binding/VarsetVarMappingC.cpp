#include "VarsetVarMappingC.h"

#include "BoundModifiers.h"

#include <core/json/PJsonValue.h>

VarsetVarMappingC::VarsetVarMappingC(const QString &sourceName, const QString &targetName)
    : m_source(sourceName)
    , m_target(targetName)
{
}

VarsetVarMappingC::~VarsetVarMappingC() = default;

VarsetVarMappingC *VarsetVarMappingC::clone() const
{
    return new VarsetVarMappingC(m_source, m_target);
}

void VarsetVarMappingC::updateVarset(const QHash<QString, MapVarValueC> &in,
                                     QHash<QString, MapVarValueC> &out) const
{
    if (m_target.isEmpty())
        return;
    if (m_source.isEmpty()) {
        out.remove(m_target);
        return;
    }
    MapVarValueC value = in.value(m_source);
    value.setName(m_target);
    out.insert(m_target, value);
}

void VarsetVarMappingC::toJson(PJsonValue &out) const
{
    out[QStringLiteral("kind")] = PJsonValue(QStringLiteral("var"));
    out[QStringLiteral("source")] = PJsonValue(m_source);
    out[QStringLiteral("target")] = PJsonValue(m_target);
}

void VarsetVarMappingC::bind(VKTab::BoundModifiers &bound) const
{
    if (m_target.isEmpty())
        return;
    if (m_source.isEmpty())
        bound.remove(m_target);
    else
        bound.bindColumn(m_source, m_target);
}
