#include "ProjectOrder.h"

#include <mapping/data/CatalogNodeType.h>

ProjectOrder::ProjectOrder(const boost::shared_ptr<CatalogStructureNodeI> &root)
{
    if (root)
        add(root);
}

void ProjectOrder::add(const boost::shared_ptr<CatalogStructureNodeI> &node)
{
    if (CatalogNodeType::isProject(node->getNodeType())) {
        const PrjMappingC mapping = node->getMapping();
        const QPair<QString, QString> key(mapping.getSourcePath(), mapping.getSourceVersion());
        // A project that is there twice shows the same mapping twice.
        if (m_positions.contains(key))
            return;
        m_positions.insert(key, size());
        m_projects.append({key.first, key.second, QString()});
        return;
    }
    for (const boost::shared_ptr<CatalogStructureNodeI> &child : node->getChildren())
        add(child);
}

int ProjectOrder::positionOf(const ProjectId &project) const
{
    return m_positions.value({project.path, project.version}, -1);
}

ProjectId ProjectOrder::next(const ProjectId &from, bool forward,
                             const std::function<bool(const ProjectId &)> &isWanted) const
{
    const int known = positionOf(from);
    const int start = known >= 0 ? known : forward ? -1 : size();
    for (int step = 1; step <= size(); ++step) {
        const int at = ((forward ? start + step : start - step) % size() + size()) % size();
        if (at != known && isWanted(m_projects[at]))
            return m_projects[at];
    }
    return {};
}
