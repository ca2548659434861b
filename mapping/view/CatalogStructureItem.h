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

    /// Asks the node for its children, once; the first of them are rows then.
    void loadChildren();
    /// How many more become rows at once; 0: all are.
    [[nodiscard]] int nextPortion() const;
    /// So many more become rows.
    void addRows(int count);
    /// Of a row that is there; made when it is wanted for the first time.
    [[nodiscard]] CatalogStructureItem *child(int at);

    CatalogStructureItem *parent; ///< null on the root item
    int row;                      ///< index among the parent's children
    boost::shared_ptr<CatalogStructureNodeI> node;
    QList<CatalogStructureItem *> children; ///< owned; null where nobody wanted one yet
    QList<boost::shared_ptr<CatalogStructureNodeI>> childNodes; ///< more than rows, if very many
    bool childrenLoaded = false;
};
