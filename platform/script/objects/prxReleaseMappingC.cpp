#include "prxReleaseMappingC.h"

#include <core/component/proxyMember.h>

prxReleaseMappingC::prxReleaseMappingC(const ReleaseMappingC &release, const ScriptRoots &roots)
    : m_release(release)
    , m_roots(roots)
{
}

prxReleaseMappingC::~prxReleaseMappingC() = default;

ProxyPtrT<prxProjectMappingC> prxReleaseMappingC::projectAt(int index) const
{
    const PrjMappingC mapping = m_release.mappingAt(index);
    return ProxyPtrT<prxProjectMappingC>(
        mapping.isValid() ? new prxProjectMappingC(mapping, m_roots) : nullptr);
}

ProxyPtrT<prxProjectMappingC> prxReleaseMappingC::project(const QString &path) const
{
    for (int i = 0; i < m_release.countMappings(); ++i) {
        if (m_release.mappingAt(i).getSourcePath() == path)
            return projectAt(i);
    }
    return {};
}

const proxyMemberDescListS *prxReleaseMappingC::getProxyTypeInfo() const
{
    return getStaticProxyTypeInfo();
}

const proxyMemberDescListS *prxReleaseMappingC::getStaticProxyTypeInfo()
{
    using Self = prxReleaseMappingC;
    static const proxyMemberDescS members[] = {
        proxyPropertyRead<&Self::sourceDate>("sourceDate"),
        proxyPropertyRead<&Self::targetDate>("targetDate"),
        proxyPropertyRead<&Self::sourceRoot>("sourceRoot"),
        proxyPropertyRead<&Self::targetRoot>("targetRoot"),
        proxyPropertyRead<&Self::projectCount>("projectCount"),
        proxyMethod<&Self::projectAt>("projectAt"),
        proxyMethod<&Self::project>("project"),
    };
    static const proxyMemberDescListS description{.className = "prxReleaseMappingC",
                                                  .base = proxyObjectC::getStaticProxyTypeInfo(),
                                                  .members = members,
                                                  .file = __FILE__,
                                                  .line = __LINE__};
    return &description;
}
