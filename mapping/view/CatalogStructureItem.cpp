#include "CatalogStructureItem.h"

#include <mapping/data/CatalogNodeType.h>

CatalogStructureItem::CatalogStructureItem(
    CatalogStructureItem *parentItem, int rowInParent,
    const boost::shared_ptr<CatalogStructureNodeI> &shownNode)
    : parent(parentItem)
    , row(rowInParent)
    , node(shownNode)
{
}

CatalogStructureItem::~CatalogStructureItem()
{
    qDeleteAll(items);
}

void CatalogStructureItem::loadChildren()
{
    if (childrenLoaded || !node)
        return;
    children = node->getChildren();
    childrenLoaded = true;
    projectsFrom = int(children.size());
    while (projectsFrom > 0 &&
           CatalogNodeType::isProject(children.at(projectsFrom - 1)->getNodeType()))
        --projectsFrom;
}

CatalogStructureItem *CatalogStructureItem::child(int at)
{
    CatalogStructureItem *&item = items[at];
    if (!item)
        item = new CatalogStructureItem(this, at, children.at(at));
    return item;
}
