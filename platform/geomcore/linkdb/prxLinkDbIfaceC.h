#pragma once

#include "PLinkDbC.h"

#include <core/component/proxyObjectC.h>
#include <geomcore/VelkGeomCoreGlobal.h>

/// The link database as scripts have it. Made by its component id "tmvtools.linkdb" it stands for
/// the link database of the process, whichever that is at the time of a call.
class VELKGEOMCORE_EXPORT prxLinkDbIfaceC : public proxyObjectC
{
public:
    /// Null stands for the link database of the process.
    explicit prxLinkDbIfaceC(const PRefPtr<PLinkDbC> &linkDb = {});

    /// Never null.
    [[nodiscard]] PRefPtr<PLinkDbC> getMainModule() const;
    /// With \a asText a text literal whatever the value is; without it a value that is a number
    /// stays bare.
    [[nodiscard]] PString codeV(const PString &value, bool asText) const;
    /// Condition on the table of documents that the current group sets, or empty.
    [[nodiscard]] PString getPlmCondition() const;
    /// The current group's value of a key, or empty.
    [[nodiscard]] PString getGroupInformation(const PString &key) const;
    bool commit();

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

private:
    ~prxLinkDbIfaceC() override;

    PRefPtr<PLinkDbC> m_linkDb;
};
