#pragma once

#include "CatalogStructureNodeI.h"
#include "WatchedRelease.h"

#include <QList>
#include <QStringView>

#include <boost/shared_ptr.hpp>

/// What lies in the root or in a directory of a release's tree: first the directories, sorted by
/// code units, then the projects that lie right here, in stored order. A backslash separates like
/// "/".
class ReleaseMappingChildren
{
public:
    ReleaseMappingChildren() = default;
    /// For the projects at \a positions of the release, seen from a directory at \a depth
    /// components (1 for the root).
    ReleaseMappingChildren(const QList<int> &positions,
                           const boost::shared_ptr<WatchedRelease> &release, int depth);

    [[nodiscard]] const QList<boost::shared_ptr<CatalogStructureNodeI>> &nodes() const
    {
        return m_nodes;
    }
    /// -1 if there is none of this name.
    [[nodiscard]] int rowOfDirectory(QStringView name) const;
    /// Of the projects at any of \a positions.
    [[nodiscard]] QList<int> rowsOfProjects(const QList<int> &positions) const;

private:
    [[nodiscard]] qsizetype directoryCount() const { return m_nodes.size() - m_projects.size(); }

    QList<boost::shared_ptr<CatalogStructureNodeI>> m_nodes;
    QList<int> m_projects; ///< positions of the last ones
};
