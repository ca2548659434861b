#pragma once

#include "SessionTypes.h"

#include <mapping/data/CatalogStructureNodeI.h>

#include <QHash>
#include <QList>
#include <QPair>

#include <functional>

/// The projects of a catalog tree in the order in which the tree shows them.
class ProjectOrder
{
public:
    /// Walks the whole tree, which is built by that.
    explicit ProjectOrder(const boost::shared_ptr<CatalogStructureNodeI> &root);

    [[nodiscard]] int size() const { return int(m_projects.size()); }
    /// Without a table version, as the tree's nodes look their mapping up.
    [[nodiscard]] const ProjectId &at(int position) const { return m_projects[position]; }
    /// The first of this path and version, -1 if the tree does not show it.
    [[nodiscard]] int positionOf(const ProjectId &project) const;
    /// The next one that is wanted behind or before a project, or from the end on if that is not
    /// known, and round the end; not valid if no other is wanted.
    [[nodiscard]] ProjectId next(const ProjectId &from, bool forward,
                                 const std::function<bool(const ProjectId &)> &isWanted) const;

private:
    void add(const boost::shared_ptr<CatalogStructureNodeI> &node);

    QList<ProjectId> m_projects;
    QHash<QPair<QString, QString>, int> m_positions;
};
