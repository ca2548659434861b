#include "PreparedRelease.h"

#include <mapping/data/CatalogNodeType.h>
#include <mapping/data/ReleaseMappingHandler.h>

namespace {

/// All below, with the states of the directories, so that whoever shows, finds or filters makes
/// nothing.
void build(const CatalogStructureNodeI &node)
{
    const QList<boost::shared_ptr<CatalogStructureNodeI>> children = node.getChildren();
    for (const boost::shared_ptr<CatalogStructureNodeI> &child : children) {
        if (child->getNodeType() != CatalogNodeType::Directory)
            return; // projects come last, and need nothing
        (void)child->getMappingState();
        build(*child);
    }
}

} // namespace

PreparedRelease PreparedRelease::of(const ReleaseMappingC &release, const QString &rootName,
                                    const QString &mappingFile)
{
    PreparedRelease prepared;
    prepared.handler = std::make_shared<ReleaseMappingHandler>(release, rootName, mappingFile);
    build(*prepared.handler->getRootStructureNode());
    prepared.projects = ProjectOrder(release);
    for (const LineCounts &lines : prepared.projects.lines())
        prepared.counts.add(lines);
    return prepared;
}
