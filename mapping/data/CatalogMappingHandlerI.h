#pragma once

#include <mapping/VelkLinkDbGuiGlobal.h>

#include "CatalogStructureNodeI.h"

#include <geomcore/records/CatalogMappingC.h>

#include <boost/shared_ptr.hpp>

/// The mapping data and its storage as the mapping editor sees them. A host derives from it or uses
/// ReleaseMappingHandler. GUI thread only.
class VELKLINKDBGUI_EXPORT CatalogMappingHandlerI
{
public:
    virtual ~CatalogMappingHandlerI();
    /// The same node every time.
    virtual boost::shared_ptr<CatalogStructureNodeI> getRootStructureNode() const = 0;
    virtual CatalogMappingC getCatalogMapping() const = 0;
    /// Every change of a mapping arrives here.
    virtual void updateMapping(const PrjMappingC &mapping) = 0;
    /// Saves; false if that failed. The editor never calls it, the host does.
    virtual bool commitModifications() = 0;
    /// This and the next four are the numbers of the statistics line: 0 unless overridden.
    virtual int countLines() const;
    virtual int countNotFound() const;
    virtual int countMapped() const;
    virtual int countToCheck() const;
    virtual int countVerified() const;

    CatalogMappingHandlerI();
    CatalogMappingHandlerI(const CatalogMappingHandlerI &other);
    CatalogMappingHandlerI &operator=(const CatalogMappingHandlerI &other);
};
