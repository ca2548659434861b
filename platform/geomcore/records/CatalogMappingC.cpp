#include "CatalogMappingC.h"

class CatalogMappingData : public QSharedData
{
public:
    QList<ReleaseMappingC> releases;
    ReleaseMappingC noRelease; ///< what lastRelease gives while the list is empty
};

CatalogMappingC::CatalogMappingC()
    : d(new CatalogMappingData)
{
}

CatalogMappingC::CatalogMappingC(const CatalogMappingC &) = default;

CatalogMappingC::CatalogMappingC(CatalogMappingC &&) noexcept = default;

CatalogMappingC &CatalogMappingC::operator=(const CatalogMappingC &) = default;

CatalogMappingC &CatalogMappingC::operator=(CatalogMappingC &&) noexcept = default;

CatalogMappingC::~CatalogMappingC() = default;

void CatalogMappingC::addRelease(const ReleaseMappingC &release)
{
    d->releases.append(release);
}

void CatalogMappingC::addMapping(const PrjMappingC &mapping)
{
    lastRelease().addMapping(mapping);
}

QList<ReleaseMappingC> CatalogMappingC::getReleases() const
{
    return d->releases;
}

ReleaseMappingC &CatalogMappingC::lastRelease()
{
    CatalogMappingData &data = *d;
    return data.releases.isEmpty() ? data.noRelease : data.releases.last();
}
