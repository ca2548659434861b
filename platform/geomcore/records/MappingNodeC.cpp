#include "MappingNodeC.h"

MappingNodeC::MappingNodeC() = default;

MappingNodeC::MappingNodeC(const MappingNodeC &) = default;

MappingNodeC &MappingNodeC::operator=(const MappingNodeC &) = default;

MappingNodeC::~MappingNodeC() = default;

void MappingNodeC::setMapping(const PrjMappingC &mapping)
{
    m_mapping = mapping;
}

PrjMappingC MappingNodeC::getMapping() const
{
    return m_mapping;
}

void MappingNodeC::isLeaf(bool leaf)
{
    m_leaf = leaf;
}

bool MappingNodeC::getIsLeaf() const
{
    return m_leaf;
}
