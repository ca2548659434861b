#include "ReleaseMappingProjectNode.h"

ReleaseMappingProjectNode::ReleaseMappingProjectNode(
    const QString &sourcePath, const QString &sourceVersion,
    const boost::shared_ptr<ReleaseMappingC> &release)
    : m_sourcePath(sourcePath)
    , m_sourceVersion(sourceVersion)
    , m_release(release)
{
}

ReleaseMappingProjectNode::~ReleaseMappingProjectNode() = default;

int ReleaseMappingProjectNode::getNodeType() const
{
    return 2;
}

QString ReleaseMappingProjectNode::getName() const
{
    return m_sourcePath.mid(m_sourcePath.lastIndexOf(u'/') + 1);
}

QString ReleaseMappingProjectNode::getPath() const
{
    return m_sourcePath;
}

QFlags<PRJMAPPING::MappingState_> ReleaseMappingProjectNode::getMappingState() const
{
    return getMapping().getMappingState();
}

PrjMappingC ReleaseMappingProjectNode::getMapping() const
{
    return m_release->findMapping(m_sourcePath, m_sourceVersion, QString());
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
