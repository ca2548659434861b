#include "CatalogStructureItem.h"

#include <algorithm>

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
    childNodes = node->getChildren();
    childrenLoaded = true;
    addRows(nextPortion());
}

int CatalogStructureItem::nextPortion() const
{
    constexpr qsizetype Portion = 1000; // more than a screen has, and laid out in no time
    return int(std::clamp<qsizetype>(childNodes.size() - children.size(), 0, Portion));
}

void CatalogStructureItem::addRows(int count)
{
    children.resize(children.size() + count);
}

CatalogStructureItem *CatalogStructureItem::child(int at)
{
    CatalogStructureItem *&item = children[at];
    if (!item)
        item = new CatalogStructureItem(this, at, childNodes.at(at));
    return item;
}
