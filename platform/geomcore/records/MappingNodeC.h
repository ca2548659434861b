#pragma once

#include "PrjMappingC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

/// Hands a project mapping to the mapper and back.
class VELKGEOMCORE_EXPORT MappingNodeC
{
public:
    MappingNodeC();
    MappingNodeC(const MappingNodeC &other);
    MappingNodeC &operator=(const MappingNodeC &other);
    virtual ~MappingNodeC();

    void setMapping(const PrjMappingC &mapping);
    [[nodiscard]] PrjMappingC getMapping() const;
    /// The mapping itself, to be changed in place.
    [[nodiscard]] PrjMappingC &mapping() { return m_mapping; }
    [[nodiscard]] const PrjMappingC &mapping() const { return m_mapping; }

    /// Sets the leaf property: nothing lies below this node.
    void isLeaf(bool leaf);
    [[nodiscard]] bool getIsLeaf() const;

private:
    PrjMappingC m_mapping;
    bool m_leaf = false;
};
