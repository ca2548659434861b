#include "ReleaseMappingProjectNode.h"

#include "CatalogNodeType.h"

ReleaseMappingProjectNode::ReleaseMappingProjectNode(
    int position, const boost::shared_ptr<WatchedRelease> &release)
    : m_position(position)
    , m_release(release)
{
}

ReleaseMappingProjectNode::~ReleaseMappingProjectNode() = default;

int ReleaseMappingProjectNode::getNodeType() const
{
    return CatalogNodeType::Project;
}

QString ReleaseMappingProjectNode::getName() const
{
    const QString path = getPath();
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QString ReleaseMappingProjectNode::getPath() const
{
    return getMapping().getSourcePath();
}

QFlags<PRJMAPPING::MappingState_> ReleaseMappingProjectNode::getMappingState() const
{
    return getMapping().getMappingState();
}

PrjMappingC ReleaseMappingProjectNode::getMapping() const
{
    return m_release->release().mappingAt(m_position);
}

bool ReleaseMappingProjectNode::hasConflicts() const
{
    return getMapping().getContainsConflicts();
}

QList<boost::shared_ptr<CatalogStructureNodeI>> ReleaseMappingProjectNode::getChildren() const
{
    return {};
}

void ReleaseMappingProjectNode::invalidateState() {}
