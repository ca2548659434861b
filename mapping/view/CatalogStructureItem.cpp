#include "CatalogStructureItem.h"

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
    qDeleteAll(children);
}

void CatalogStructureItem::loadChildren()
{
    if (childrenLoaded || !node)
        return;
    const QList<boost::shared_ptr<CatalogStructureNodeI>> nodes = node->getChildren();
    children.reserve(nodes.size());
    for (const boost::shared_ptr<CatalogStructureNodeI> &child : nodes)
        children += new CatalogStructureItem(this, int(children.size()), child);
    childrenLoaded = true;
}
