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
    qDeleteAll(items);
}

void CatalogStructureItem::loadChildren()
{
    if (childrenLoaded || !node)
        return;
    children = node->getChildren();
    childrenLoaded = true;
}

CatalogStructureItem *CatalogStructureItem::child(int at)
{
    CatalogStructureItem *&item = items[at];
    if (!item)
        item = new CatalogStructureItem(this, at, children.at(at));
    return item;
}
