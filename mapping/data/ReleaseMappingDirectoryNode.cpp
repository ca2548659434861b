#include "ReleaseMappingDirectoryNode.h"

#include "CatalogNodeType.h"

ReleaseMappingDirectoryNode::ReleaseMappingDirectoryNode(
    const QList<int> &projects, const boost::shared_ptr<WatchedRelease> &release,
    const QString &name, int depth)
    : m_projects(projects)
    , m_release(release)
    , m_name(name)
    , m_depth(depth)
    , m_marks(projects)
{
}

ReleaseMappingDirectoryNode::~ReleaseMappingDirectoryNode() = default;

int ReleaseMappingDirectoryNode::getNodeType() const
{
    return CatalogNodeType::Directory;
}

QString ReleaseMappingDirectoryNode::getName() const
{
    return m_name;
}

QString ReleaseMappingDirectoryNode::getPath() const
{
    return QString();
}

QFlags<PRJMAPPING::MappingState_> ReleaseMappingDirectoryNode::getMappingState() const
{
    const int generation = m_release->generation();
    if (m_cachedState.testFlag(PRJMAPPING::StateUsable) && m_cachedGeneration == generation)
        return m_cachedState;
    m_cachedState = marks().states() | PRJMAPPING::StateUsable;
    m_cachedGeneration = generation;
    return m_cachedState;
}

PrjMappingC ReleaseMappingDirectoryNode::getMapping() const
{
    return PrjMappingC();
}

bool ReleaseMappingDirectoryNode::hasConflicts() const
{
    return marks().hasConflicts();
}

QList<boost::shared_ptr<CatalogStructureNodeI>> ReleaseMappingDirectoryNode::getChildren() const
{
    return children().nodes();
}

const ReleaseMappingChildren &ReleaseMappingDirectoryNode::children() const
{
    if (m_children.nodes().isEmpty())
        m_children = ReleaseMappingChildren(m_projects, m_release, m_depth);
    return m_children;
}

void ReleaseMappingDirectoryNode::invalidateState()
{
    m_cachedState = {};
}

const MarkSum &ReleaseMappingDirectoryNode::marks() const
{
    m_marks.bringUpToDate(*m_release);
    return m_marks;
}
