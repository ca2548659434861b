#pragma once

#include <core/component/proxyMemberDescListS.h>

/// The plug-in's script classes, as the component server knows them.
struct prxLinkDbGuiC
{
    static const proxyMemberDescListS *getStaticProxyTypeInfo();
};

/// Comes from a prxLinkDbGuiC only, so it has no component id.
struct prxDocumentListDialogC
{
    static const proxyMemberDescListS *getStaticProxyTypeInfo();
};
