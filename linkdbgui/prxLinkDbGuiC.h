#pragma once

#include "prxDocumentListDialogC.h"

#include <core/component/proxyObjectC.h>
#include <core/text/ProxyPtrT.h>
#include <geomcore/linkdb/prxLinkDbIfaceC.h>

/// The plug-in as scripts have it, by the component id "tmvtools.linkdbgui".
class prxLinkDbGuiC : public proxyObjectC
{
public:
    prxLinkDbGuiC();

    [[nodiscard]] ProxyPtrT<prxLinkDbIfaceC> getLinkDbIface() const { return m_linkDbIface; }
    void setLinkDbIface(const ProxyPtrT<prxLinkDbIfaceC> &linkDbIface);
    /// A new dialog over the link database; null without one.
    [[nodiscard]] ProxyPtrT<prxDocumentListDialogC> createPdmDocViewDialog() const;

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

private:
    ~prxLinkDbGuiC() override;

    ProxyPtrT<prxLinkDbIfaceC> m_linkDbIface;
};
