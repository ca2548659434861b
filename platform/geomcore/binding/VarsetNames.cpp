#include "VarsetNames.h"

VarsetNames::VarsetNames(const Varset &source, const Varset &target)
    : m_source(source)
    , m_target(target)
{
}

VarsetNames::~VarsetNames() = default;

bool VarsetNames::isReadable(const QString &name, bool prefixed) const
{
    return m_source.contains(name) || (prefixed && m_target.contains(name));
}

bool VarsetNames::isAssignable(const QString &name) const
{
    return m_target.contains(name);
}

VKTab::VarId VarsetNames::idOf(const QString &name)
{
    qsizetype index = m_assigned.indexOf(name);
    if (index < 0) {
        index = m_assigned.size();
        m_assigned.append(name);
    }
    return VKTab::VarId(int(index));
}

QString VarsetNames::nameOf(const VKTab::VarId &id) const
{
    return m_assigned.value(id.value());
}
