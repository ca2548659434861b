#include "prxLinkDbGuiC.h"

#include <core/component/proxyMember.h>
#include <geomcore/index/IndexTreeC.h>

prxLinkDbGuiC::prxLinkDbGuiC() = default;
prxLinkDbGuiC::~prxLinkDbGuiC() = default;

void prxLinkDbGuiC::setLinkDbIface(const ProxyPtrT<prxLinkDbIfaceC> &linkDbIface)
{
    m_linkDbIface = linkDbIface;
}

ProxyPtrT<prxDocumentListDialogC> prxLinkDbGuiC::createPdmDocViewDialog() const
{
    if (m_linkDbIface.isNull())
        return nullptr;
    ProxyPtrT<prxDocumentListDialogC> dialog(new prxDocumentListDialogC);
    dialog->setIndexTree(m_linkDbIface->getMainModule()->getIndexTree());
    dialog->setLinkDbIface(m_linkDbIface);
    return dialog;
}

const proxyMemberDescListS *prxLinkDbGuiC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxLinkDbGuiC::getStaticProxyTypeInfo()
{
    static constexpr proxyMemberDescS members[] = {
        proxyPropertyRead<&prxLinkDbGuiC::getLinkDbIface>("linkDbIface"),
        proxyPropertyWrite<&prxLinkDbGuiC::setLinkDbIface>("linkDbIface"),
        proxyMethod<&prxLinkDbGuiC::setLinkDbIface>("linkDbIface"),
        proxyMethod<&prxLinkDbGuiC::createPdmDocViewDialog>("createPdmDocViewDialog"),
    };
    static const proxyMemberDescListS description{
        .className = "prxLinkDbGuiC",
        .base = proxyObjectC::getStaticProxyTypeInfo(),
        .members = members,
        .componentId = "tmvtools.linkdbgui",
        .creator = []() -> proxyObjectC * { return new prxLinkDbGuiC; },
        .file = __FILE__,
        .line = __LINE__};
    return &description;
}
