// A library with a script class of its own.

#include <core/component/proxyAutoRegisterT.h>
#include <core/component/proxyMember.h>
#include <core/text/ProxyPtrT.h>
#include <gui/script/prxguiWindowC.h>

namespace {

class prxProbeC : public proxyObjectC
{
public:
    ProxyPtrT<prxguiWindowC> window() const { return m_window; }
    void setWindow(const ProxyPtrT<prxguiWindowC> &window) { m_window = window; }
    ProxyPtrT<prxProbeC> peer() const { return m_peer; }
    void setPeer(const ProxyPtrT<prxProbeC> &peer) { m_peer = peer; }
    QString title() const { return m_window ? m_window->getWidget()->windowTitle() : QString(); }

    const proxyMemberDescListS *getProxyTypeInfo() const override
    {
        return getStaticProxyTypeInfo();
    }
    static const proxyMemberDescListS *getStaticProxyTypeInfo();

private:
    ProxyPtrT<prxguiWindowC> m_window;
    ProxyPtrT<prxProbeC> m_peer;
};

const proxyMemberDescListS *prxProbeC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescS members[] = {
        proxyPropertyRead<&prxProbeC::window>("window"),
        proxyPropertyWrite<&prxProbeC::setWindow>("window"),
        proxyMethod<&prxProbeC::setWindow>("window"),
        proxyPropertyRead<&prxProbeC::peer>("peer"),
        proxyPropertyWrite<&prxProbeC::setPeer>("peer"),
        proxyMethod<&prxProbeC::setPeer>("peer"),
        proxyMethod<&prxProbeC::title>("title"),
    };
    static const proxyMemberDescListS description{
        .className = "prxProbeC",
        .base = proxyObjectC::getStaticProxyTypeInfo(),
        .members = members,
        .componentId = "tests.probe",
        .creator = []() -> proxyObjectC * { return new prxProbeC; },
        .file = __FILE__,
        .line = __LINE__};
    return &description;
}

struct Registration
{
    Registration() { registrar.init(); }
    proxyAutoRegisterT<prxProbeC> registrar{0x50};
} registration;

} // namespace
