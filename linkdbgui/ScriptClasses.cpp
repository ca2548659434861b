#include "ScriptClasses.h"

const proxyMemberDescListS *prxLinkDbGuiC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescListS description{.className = "prxLinkDbGuiC",
                                                  .componentId = "tmvtools.linkdbgui",
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}

const proxyMemberDescListS *prxDocumentListDialogC::getStaticProxyTypeInfo()
{
    static const proxyMemberDescListS description{
        .className = "prxDocumentListDialogC", .file = __FILE__, .line = __LINE__};
    return &description;
}
