#include "ReleaseMappingTree.h"

#include "ReleaseMappingDirectoryNode.h"
#include "ReleaseMappingProjectNode.h"

#include <geomcore/records/FolderLevel.h>

#include <boost/make_shared.hpp>

QList<boost::shared_ptr<CatalogStructureNodeI>>
buildReleaseChildren(const QList<int> &positions, const boost::shared_ptr<WatchedRelease> &release,
                     int depth)
{
    const FolderLevel level(release->release(), positions, depth);
    QList<boost::shared_ptr<CatalogStructureNodeI>> result;
    result.reserve(level.folders.size() + level.projects.size());
    for (auto it = level.folders.cbegin(); it != level.folders.cend(); ++it)
        result += boost::make_shared<ReleaseMappingDirectoryNode>(it.value(), release, it.key(),
                                                                  depth + 1);
    for (const int position : level.projects)
        result += boost::make_shared<ReleaseMappingProjectNode>(position, release);
    return result;
}
