#pragma once

#include "prxErpNumbersC.h"
#include "prxReleaseMappingC.h"

/// What scripts begin with: the version, and files to read.
class prxVelkC : public proxyObjectC
{
public:
    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    /// Scripts have all of the below.
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

    [[nodiscard]] QString version() const;
    /// The last release of a mapping file. What keeps it from being read is an error of the script.
    [[nodiscard]] ProxyPtrT<prxReleaseMappingC> openMapping(const QString &file) const;
    /// The release with that source date; its tables are read below the two roots.
    [[nodiscard]] ProxyPtrT<prxReleaseMappingC> openRelease(const QString &file,
                                                            const QString &sourceDate,
                                                            const QString &sourceRoot,
                                                            const QString &targetRoot) const;
    /// The table of a project file.
    [[nodiscard]] ProxyPtrT<VKTab::proxyTableC> openTable(const QString &projectFile) const;
    /// A link database is connected.
    [[nodiscard]] bool hasLinkDb() const;
    /// The ERP numbers of a project by its catalog path, from the link database of the process.
    [[nodiscard]] ProxyPtrT<prxErpNumbersC> erpNumbers(const QString &projectPath) const;

private:
    ~prxVelkC() override;
};
