#include "prxguiWindowC.h"

prxguiWindowC::prxguiWindowC(QWidget *window)
    : m_window(window)
{
}

prxguiWindowC::~prxguiWindowC() = default;

const proxyMemberDescListS *prxguiWindowC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxguiWindowC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescListS description{.className = "prxguiWindowC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}
