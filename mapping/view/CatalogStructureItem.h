#pragma once

#include <mapping/data/CatalogStructureNodeI.h>

#include <QHash>
#include <QList>

#include <boost/shared_ptr.hpp>

/// A node and the ones below it, as the catalog's model knows them. A model index points at the
/// item above its row: a row has none of its own until somebody asks what is below it.
struct CatalogStructureItem
{
    CatalogStructureItem(CatalogStructureItem *parentItem, int rowInParent,
                         const boost::shared_ptr<CatalogStructureNodeI> &shownNode);
    CatalogStructureItem(const CatalogStructureItem &) = delete;
    CatalogStructureItem &operator=(const CatalogStructureItem &) = delete;
    /// Frees all items below.
    ~CatalogStructureItem();

    /// Asks the node for its children, once.
    void loadChildren();
    /// Of a row that is there; made when it is wanted for the first time.
    [[nodiscard]] CatalogStructureItem *child(int at);

    CatalogStructureItem *parent; ///< null on the root item
    int row;                      ///< index among the parent's children
    boost::shared_ptr<CatalogStructureNodeI> node;
    QList<boost::shared_ptr<CatalogStructureNodeI>> children;
    int projectsFrom = 0; ///< the row from which on all children are projects
    bool childrenLoaded = false;
    QHash<int, CatalogStructureItem *> items; ///< of children, by their rows; owned
};
