#include "proxyFactoryC.h"

#include <algorithm>

proxyFactoryC &proxyFactoryC::instance()
{
    // Never destroyed, as libraries may go late.
    static auto *const factory = new proxyFactoryC;
    return *factory;
}

void proxyFactoryC::registerClass(const proxyMemberDescListS *description)
{
    if (!m_classes.contains(description))
        m_classes.append(description);
}

void proxyFactoryC::unregisterClass(const proxyMemberDescListS *description)
{
    m_classes.removeOne(description);
}

const proxyMemberDescListS *proxyFactoryC::findClass(const QString &className) const
{
    const auto found = std::ranges::find_if(m_classes, [&](const proxyMemberDescListS *each) {
        return className == QLatin1StringView(each->className);
    });
    return found == m_classes.cend() ? nullptr : *found;
}

const proxyMemberDescListS *proxyFactoryC::findComponent(const QString &componentId) const
{
    const auto found = std::ranges::find_if(m_classes, [&](const proxyMemberDescListS *each) {
        return each->componentId && componentId == QLatin1StringView(each->componentId);
    });
    return found == m_classes.cend() ? nullptr : *found;
}
