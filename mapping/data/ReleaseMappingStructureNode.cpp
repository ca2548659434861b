#include "ReleaseMappingStructureNode.h"

#include "CatalogNodeType.h"
#include "ReleaseMappingTree.h"

ReleaseMappingStructureNode::ReleaseMappingStructureNode(
    const QString &name, const boost::shared_ptr<WatchedRelease> &release)
    : m_name(name)
    , m_release(release)
{
}

ReleaseMappingStructureNode::~ReleaseMappingStructureNode() = default;

int ReleaseMappingStructureNode::getNodeType() const
{
    return CatalogNodeType::Root;
}

QString ReleaseMappingStructureNode::getName() const
{
    return m_name;
}

QString ReleaseMappingStructureNode::getPath() const
{
    return QString();
}

QFlags<PRJMAPPING::MappingState_> ReleaseMappingStructureNode::getMappingState() const
{
    return m_release->release().getMappingState();
}

PrjMappingC ReleaseMappingStructureNode::getMapping() const
{
    return PrjMappingC();
}

bool ReleaseMappingStructureNode::hasConflicts() const
{
    return false;
}

QList<boost::shared_ptr<CatalogStructureNodeI>> ReleaseMappingStructureNode::getChildren() const
{
    if (m_children.isEmpty())
        m_children = buildReleaseChildren(m_release->release().firstPositions(), m_release, 1);
    return m_children;
}

void ReleaseMappingStructureNode::invalidateState() {}

void ReleaseMappingStructureNode::invalidateTree()
{
    m_release->dropStates();
}
