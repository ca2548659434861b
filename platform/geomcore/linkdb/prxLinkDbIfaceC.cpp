#include "prxLinkDbIfaceC.h"

#include <core/component/proxyAutoRegisterT.h>
#include <core/component/proxyMember.h>

namespace {

/// Of a group: condition on the table of documents, in SQL.
const char *const conditionKey = "PDM_CONDITION";

struct Registration
{
    Registration() { registrar.init(); }

    proxyAutoRegisterT<prxLinkDbIfaceC> registrar{mzComServerStateEventC::ServerStarted |
                                                  mzComServerStateEventC::ServerStopping};
};

const Registration registration;

} // namespace

prxLinkDbIfaceC::prxLinkDbIfaceC(const PRefPtr<PLinkDbC> &linkDb)
    : m_linkDb(linkDb)
{
}

prxLinkDbIfaceC::~prxLinkDbIfaceC() = default;

PRefPtr<PLinkDbC> prxLinkDbIfaceC::getMainModule() const
{
    return m_linkDb ? m_linkDb : PLinkDbC::instance();
}

PString prxLinkDbIfaceC::codeV(const PString &value, bool asText) const
{
    bool isNumber = false;
    if (!asText)
        value.toLongLong(&isNumber);
    return isNumber ? value : PString(getMainModule()->literal(QString(value)));
}

PString prxLinkDbIfaceC::getPlmCondition() const
{
    return getGroupInformation(conditionKey);
}

PString prxLinkDbIfaceC::getGroupInformation(const PString &key) const
{
    return getMainModule()->groupInformation(key);
}

bool prxLinkDbIfaceC::commit()
{
    return getMainModule()->commit();
}

const proxyMemberDescListS *prxLinkDbIfaceC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxLinkDbIfaceC::getStaticProxyTypeInfo()
{
    static constexpr proxyMemberDescS members[] = {
        proxyMethod<&prxLinkDbIfaceC::codeV>("codeV"),
        proxyMethod<&prxLinkDbIfaceC::getPlmCondition>("getPlmCondition"),
        proxyMethod<&prxLinkDbIfaceC::getGroupInformation>("getGroupInformation"),
        proxyMethod<&prxLinkDbIfaceC::commit>("commit"),
    };
    static const proxyMemberDescListS description{
        .className = "prxLinkDbIfaceC",
        .base = proxyObjectC::getStaticProxyTypeInfo(),
        .members = members,
        .componentId = "tmvtools.linkdb",
        .creator = []() -> proxyObjectC * { return new prxLinkDbIfaceC; },
        .file = __FILE__,
        .line = __LINE__};
    return &description;
}
