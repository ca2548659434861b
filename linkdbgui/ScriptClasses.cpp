#include "ScriptClasses.h"

const proxyMemberDescListS *prxLinkDbGuiC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescListS description{"prxLinkDbGuiC", "tmvtools.linkdbgui", __FILE__,
                                                  __LINE__};
    return &description;
}

const proxyMemberDescListS *prxDocumentListDialogC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescListS description{"prxDocumentListDialogC", nullptr, __FILE__,
                                                  __LINE__};
    return &description;
}
