#pragma once

#include <mapping/data/CatalogStructureNodeI.h>

#include <QList>

#include <boost/shared_ptr.hpp>

/// One node as the catalog's model knows it; what a model index of it points at.
struct CatalogStructureItem
{
    CatalogStructureItem(CatalogStructureItem *parentItem, int rowInParent,
                         const boost::shared_ptr<CatalogStructureNodeI> &shownNode);
    CatalogStructureItem(const CatalogStructureItem &) = delete;
    CatalogStructureItem &operator=(const CatalogStructureItem &) = delete;
    /// Frees all items below.
    ~CatalogStructureItem();

    /// Asks the node for its children, once, and makes the first of them.
    void loadChildren();
    /// How many more are made at once; 0: all are there.
    [[nodiscard]] int nextPortion() const;
    /// Makes them.
    void loadMore();

    CatalogStructureItem *parent; ///< null on the root item
    int row;                      ///< index among the parent's children
    boost::shared_ptr<CatalogStructureNodeI> node;
    QList<CatalogStructureItem *> children; ///< owned; empty until childrenLoaded
    /// Of a directory with very many: all of them, as long as there are not that many children.
    QList<boost::shared_ptr<CatalogStructureNodeI>> childNodes;
    bool childrenLoaded = false;
};
