#include "PreparedRelease.h"

#include <mapping/data/CatalogNodeType.h>
#include <mapping/data/ReleaseMappingHandler.h>

namespace {

/// The top level, and below it as long as there is only one directory, with the states.
void buildTop(boost::shared_ptr<CatalogStructureNodeI> node)
{
    for (bool goesOn = true; goesOn;) {
        const QList<boost::shared_ptr<CatalogStructureNodeI>> children = node->getChildren();
        for (const boost::shared_ptr<CatalogStructureNodeI> &child : children) {
            if (child->getNodeType() != CatalogNodeType::Directory)
                break; // projects come last, and need nothing
            (void)child->getMappingState();
        }
        goesOn =
            children.size() == 1 && children.first()->getNodeType() == CatalogNodeType::Directory;
        if (goesOn)
            node = children.first();
    }
}

} // namespace

PreparedRelease PreparedRelease::of(const ReleaseMappingC &release, const QString &rootName,
                                    const QString &mappingFile)
{
    PreparedRelease prepared;
    prepared.handler = std::make_shared<ReleaseMappingHandler>(release, rootName, mappingFile);
    buildTop(prepared.handler->getRootStructureNode());
    prepared.projects = ProjectOrder(release);
    for (const LineCounts &lines : prepared.projects.lines())
        prepared.counts.add(lines);
    return prepared;
}
