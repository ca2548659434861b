#pragma once

#include "CatalogStructureItem.h"

#include <core/text/PPrivateData.h>

#include <QIcon>
#include <QModelIndex>

#include <memory>

class CatalogStructureModel;

/// State of a CatalogStructureModel.
class CatalogStructureModelPrivate : public PPrivateData<CatalogStructureModel>
{
public:
    CatalogStructureModelPrivate(CatalogStructureModel *owner,
                                 const boost::shared_ptr<CatalogStructureNodeI> &root);

    /// What an index points at.
    [[nodiscard]] static CatalogStructureItem *itemAbove(const QModelIndex &index);
    /// The item of an index, or the root item for an invalid one.
    [[nodiscard]] CatalogStructureItem *itemOf(const QModelIndex &index) const;
    /// The same with its children loaded.
    [[nodiscard]] CatalogStructureItem *loadedItemOf(const QModelIndex &index) const;
    void loadIcons();

    std::unique_ptr<CatalogStructureItem> rootItem;
    QIcon directoryIcon;
    QIcon projectIcon;
};
