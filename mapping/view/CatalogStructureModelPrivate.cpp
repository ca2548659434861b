#include "CatalogStructureModelPrivate.h"

#include <core/text/PString.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/index/IndexTreeIconTableC.h>

namespace {

QIcon iconOf(const IndexTreeIconTableC &table, const char *type)
{
    const IndexTreeIconTableItemC *item = table.findItem(PString(type));
    return item ? item->getIcon() : QIcon();
}

} // namespace

CatalogStructureModelPrivate::CatalogStructureModelPrivate(
    CatalogStructureModel *owner, const boost::shared_ptr<CatalogStructureNodeI> &root)
    : PPrivateData(owner)
    , rootItem(std::make_unique<CatalogStructureItem>(nullptr, 0, root))
{
}

CatalogStructureItem *CatalogStructureModelPrivate::itemAbove(const QModelIndex &index)
{
    return static_cast<CatalogStructureItem *>(index.internalPointer());
}

CatalogStructureItem *CatalogStructureModelPrivate::itemOf(const QModelIndex &index) const
{
    return index.isValid() ? itemAbove(index)->child(index.row()) : rootItem.get();
}

CatalogStructureItem *CatalogStructureModelPrivate::loadedItemOf(const QModelIndex &index) const
{
    CatalogStructureItem *item = itemOf(index);
    item->loadChildren();
    return item;
}

void CatalogStructureModelPrivate::loadIcons()
{
    const IndexTreeIconTableC &table = IndexTreeC::instance()->getIconTable();
    directoryIcon = iconOf(table, "DIRECTORY/");
    projectIcon = iconOf(table, "VIEW3D/");
}
