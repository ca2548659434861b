#pragma once

#include <mapping/VelkLinkDbGuiGlobal.h>

#include <geomcore/records/PrjMappingC.h>

#include <QFlags>
#include <QList>
#include <QString>

#include <boost/shared_ptr.hpp>

/// One node of the catalog tree that the mapping editor shows. Nodes are owned by shared pointers,
/// and the tree's model holds them for as long as it lives.
class VELKLINKDBGUI_EXPORT CatalogStructureNodeI
{
public:
    virtual ~CatalogStructureNodeI();
    /// 0 root, 1 directory, 2 (or 3) project.
    virtual int getNodeType() const = 0;
    /// Text of the tree row; ".prj" at its end makes it a project for the filter.
    virtual QString getName() const = 0;
    /// Source path of a project, else empty.
    virtual QString getPath() const = 0;
    /// Flags of this node and all below it.
    virtual QFlags<PRJMAPPING::MappingState_> getMappingState() const = 0;
    /// Mapping of a project, else not valid.
    virtual PrjMappingC getMapping() const = 0;
    /// Whether this node or one below it holds a line in conflict.
    virtual bool hasConflicts() const = 0;
    /// In display order, the same nodes every time; empty on a project.
    virtual QList<boost::shared_ptr<CatalogStructureNodeI>> getChildren() const = 0;
    /// Drops what the node remembers of its state.
    virtual void invalidateState() = 0;

    CatalogStructureNodeI();
    CatalogStructureNodeI(const CatalogStructureNodeI &other);
    CatalogStructureNodeI &operator=(const CatalogStructureNodeI &other);
};
