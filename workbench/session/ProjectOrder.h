#pragma once

#include "SessionTypes.h"

#include <mapping/data/CatalogStructureNodeI.h>

#include <QHash>
#include <QList>
#include <QPair>

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

private:
    void add(const boost::shared_ptr<CatalogStructureNodeI> &node);

    QList<ProjectId> m_projects;
    QHash<QPair<QString, QString>, int> m_positions;
};
