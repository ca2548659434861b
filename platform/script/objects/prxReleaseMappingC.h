#pragma once

#include "prxProjectMappingC.h"

#include <geomcore/records/ReleaseMappingC.h>

/// A release mapping as scripts read it: as it was when the script got it.
class prxReleaseMappingC : public proxyObjectC
{
public:
    prxReleaseMappingC(const ReleaseMappingC &release, const ScriptRoots &roots);

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    /// Scripts have all of the below.
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

    [[nodiscard]] QString sourceDate() const { return m_release.getSourceDate(); }
    [[nodiscard]] QString targetDate() const { return m_release.getTargetDate(); }
    [[nodiscard]] QString sourceRoot() const { return m_roots.source; }
    [[nodiscard]] QString targetRoot() const { return m_roots.target; }
    [[nodiscard]] int projectCount() const { return m_release.countMappings(); }
    /// Both null without such a project.
    [[nodiscard]] ProxyPtrT<prxProjectMappingC> projectAt(int index) const;
    [[nodiscard]] ProxyPtrT<prxProjectMappingC> project(const QString &path) const;

private:
    ~prxReleaseMappingC() override;

    ReleaseMappingC m_release;
    ScriptRoots m_roots;
};
