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
    loadMore();
}

int CatalogStructureItem::nextPortion() const
{
    constexpr qsizetype Portion = 1000; // more than a screen has, and made in no time
    return int(std::clamp<qsizetype>(childNodes.size() - children.size(), 0, Portion));
}

void CatalogStructureItem::loadMore()
{
    const int more = nextPortion();
    children.reserve(children.size() + more);
    for (int i = 0; i < more; ++i)
        children +=
            new CatalogStructureItem(this, int(children.size()), childNodes.at(children.size()));
    if (children.size() == childNodes.size())
        childNodes.clear();
}
