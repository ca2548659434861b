#include "ReleaseMappingChildren.h"

#include "ReleaseMappingDirectoryNode.h"
#include "ReleaseMappingProjectNode.h"

#include <geomcore/records/FolderLevel.h>

#include <boost/make_shared.hpp>

#include <algorithm>

ReleaseMappingChildren::ReleaseMappingChildren(const QList<int> &positions,
                                               const boost::shared_ptr<WatchedRelease> &release,
                                               int depth)
{
    const FolderLevel level(release->release(), positions, depth);
    m_projects = level.projects;
    m_nodes.reserve(level.folders.size() + m_projects.size());
    for (auto it = level.folders.cbegin(); it != level.folders.cend(); ++it)
        m_nodes += boost::make_shared<ReleaseMappingDirectoryNode>(it.value(), release, it.key(),
                                                                   depth + 1);
    for (const int position : std::as_const(m_projects))
        m_nodes += boost::make_shared<ReleaseMappingProjectNode>(position, release);
}

int ReleaseMappingChildren::rowOfDirectory(QStringView name) const
{
    const auto end = m_nodes.cbegin() + directoryCount();
    const auto isBefore = [](const auto &node, QStringView wanted) {
        return node->getName() < wanted;
    };
    const auto found = std::lower_bound(m_nodes.cbegin(), end, name, isBefore);
    return found != end && (*found)->getName() == name ? int(found - m_nodes.cbegin()) : -1;
}

QList<int> ReleaseMappingChildren::rowsOfProjects(const QList<int> &positions) const
{
    QList<int> rows;
    const auto isWanted = [&positions](int position) {
        return positions.contains(position);
    };
    for (auto found = m_projects.cbegin();; ++found) {
        found = std::find_if(found, m_projects.cend(), isWanted);
        if (found == m_projects.cend())
            return rows;
        rows += int(directoryCount() + (found - m_projects.cbegin()));
    }
}
