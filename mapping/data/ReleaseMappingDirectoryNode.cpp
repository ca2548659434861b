#include "ReleaseMappingDirectoryNode.h"

#include <algorithm>

ReleaseMappingDirectoryNode::ReleaseMappingDirectoryNode(
    const QList<ProjectKey> &projects, const boost::shared_ptr<ReleaseMappingC> &release,
    const QString &name, int depth)
    : m_projects(projects)
    , m_release(release)
    , m_name(name)
    , m_depth(depth)
{
}

ReleaseMappingDirectoryNode::~ReleaseMappingDirectoryNode() = default;

int ReleaseMappingDirectoryNode::getNodeType() const
{
    return 1;
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
    if (m_cachedState.testFlag(PRJMAPPING::StateUsable))
        return m_cachedState;
    m_cachedState.setFlag(PRJMAPPING::StateUsable);
    for (const ProjectKey &key : m_projects) {
        const PRJMAPPING::MappingState state =
            m_release->findMapping(key.first, key.second, QString()).getMappingState();
        for (PRJMAPPING::MappingState_ bit : PRJMAPPING::RolledUpStates) {
            if (state.testFlag(bit))
                m_cachedState.setFlag(bit);
        }
    }
    return m_cachedState;
}

PrjMappingC ReleaseMappingDirectoryNode::getMapping() const
{
    return PrjMappingC();
}

bool ReleaseMappingDirectoryNode::hasConflicts() const
{
    return std::any_of(m_projects.begin(), m_projects.end(), [this](const ProjectKey &key) {
        return m_release->findMapping(key.first, key.second, QString()).getContainsConflicts();
    });
}

QList<boost::shared_ptr<CatalogStructureNodeI>> ReleaseMappingDirectoryNode::getChildren() const
{
    if (m_children.isEmpty())
        m_children = buildReleaseChildren(m_projects, m_release, m_depth);
    return m_children;
}

void ReleaseMappingDirectoryNode::invalidateState()
{
    m_cachedState = {};
}
