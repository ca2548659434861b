#include "prxguiWindowC.h"

#include <core/component/proxyMember.h>

prxguiWindowC::prxguiWindowC(QWidget *window)
    : m_window(window)
{
}

prxguiWindowC::~prxguiWindowC() = default;

QString prxguiWindowC::title() const
{
    return m_window ? m_window->windowTitle() : QString();
}

bool prxguiWindowC::isVisible() const
{
    return m_window && m_window->isVisible();
}

const proxyMemberDescListS *prxguiWindowC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxguiWindowC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescS members[] = {
        proxyPropertyRead<&prxguiWindowC::title>("title"),
        proxyPropertyRead<&prxguiWindowC::isVisible>("isVisible"),
    };
    static const proxyMemberDescListS description{.className = "prxguiWindowC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}
