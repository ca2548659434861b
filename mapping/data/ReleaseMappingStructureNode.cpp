#include "ReleaseMappingStructureNode.h"

#include "CatalogNodeType.h"
#include "ReleaseMappingDirectoryNode.h"

#include <geomcore/records/FolderLevel.h>

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
    return children().nodes();
}

void ReleaseMappingStructureNode::invalidateState() {}

void ReleaseMappingStructureNode::invalidateTree()
{
    m_release->dropStates();
}

QList<QList<int>> ReleaseMappingStructureNode::rowsTo(const QString &sourcePath) const
{
    const QList<int> positions = m_release->release().findPositions(sourcePath);
    if (positions.isEmpty())
        return {};
    const ReleaseMappingChildren *level = &children();
    QList<int> above;
    for (const QStringView folder : foldersOf(sourcePath)) {
        const int row = level->rowOfDirectory(folder);
        if (row < 0)
            return {};
        above += row;
        const CatalogStructureNodeI &directory = *level->nodes().at(row);
        level = &static_cast<const ReleaseMappingDirectoryNode &>(directory).children();
    }
    QList<QList<int>> found;
    for (const int row : level->rowsOfProjects(positions))
        found += above + QList<int>{row};
    return found;
}

const ReleaseMappingChildren &ReleaseMappingStructureNode::children() const
{
    if (m_children.nodes().isEmpty())
        m_children = ReleaseMappingChildren(m_release->release().firstPositions(), m_release, 1);
    return m_children;
}
