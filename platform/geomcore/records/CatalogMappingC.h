#pragma once

#include "ReleaseMappingC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QMetaType>
#include <QSharedDataPointer>

class CatalogMappingData;

/// The release steps of one catalog. A copy-on-write value.
class VELKGEOMCORE_EXPORT CatalogMappingC
{
public:
    CatalogMappingC();
    CatalogMappingC(const CatalogMappingC &other);
    CatalogMappingC(CatalogMappingC &&other) noexcept;
    CatalogMappingC &operator=(const CatalogMappingC &other);
    CatalogMappingC &operator=(CatalogMappingC &&other) noexcept;
    ~CatalogMappingC();

    /// Appends: the last added is the last release.
    void addRelease(const ReleaseMappingC &release);
    /// Adds to the last release, in the way of ReleaseMappingC::addMapping. Without a release it
    /// goes into the default one that lastRelease gives.
    void addMapping(const PrjMappingC &mapping);
    [[nodiscard]] QList<ReleaseMappingC> getReleases() const;
    /// A reference into this record, valid until it is assigned to or gets another release. Without
    /// a release it is a default one that is kept here and is not among getReleases.
    [[nodiscard]] ReleaseMappingC &lastRelease();

private:
    QSharedDataPointer<CatalogMappingData> d;
};
Q_DECLARE_TYPEINFO(CatalogMappingC, Q_RELOCATABLE_TYPE);
Q_DECLARE_METATYPE(CatalogMappingC)
