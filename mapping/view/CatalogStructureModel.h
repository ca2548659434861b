#pragma once

#include <mapping/data/CatalogStructureNodeI.h>

#include <QAbstractItemModel>

#include <boost/shared_ptr.hpp>

struct CatalogStructureItem;
class CatalogStructureModelPrivate;

/// The catalog's tree of nodes as an item model of one column. Children are asked of a node when a
/// view needs them, and once: the tree does not change after that. Of a directory with very many,
/// the rows come in portions, as views fetch them. GUI thread only.
class CatalogStructureModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role : int {
        MappingStateRole = 42,  ///< int: the node's state as its bits
        StructureNodeRole = 43, ///< the node itself; read it with nodeFrom
        ConflictRole = 44,      ///< bool
    };

    /// \a root is not shown itself; its children are the top level.
    explicit CatalogStructureModel(boost::shared_ptr<CatalogStructureNodeI> root);
    ~CatalogStructureModel() override;

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /// Loads them to know, but for a FilledNodeI and for projects, which have none.
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    /// Until there is this row, all at once; what a view does with a row is left to the view.
    void fetchRow(int row, const QModelIndex &parent);
    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;

    /// What is there of the tree.
    [[nodiscard]] const CatalogStructureItem &rootItem() const;
    [[nodiscard]] const CatalogStructureNodeI &nodeAt(const QModelIndex &index) const;
    /// Of a row, without an index of it.
    [[nodiscard]] const CatalogStructureNodeI &childAt(int row, const QModelIndex &parent) const;

    /// Makes all nodes from \a item down drop what they remember of their state; null begins at the
    /// root. A root that is a StateTreeI does it by itself and loads nothing; else the nodes are
    /// walked, which loads them, children before parents. Sends no signal: the caller repaints its
    /// views.
    void invalidateNodes(CatalogStructureItem *item = nullptr);

    /// The node in a value of StructureNodeRole, of this model or of a proxy; null if it has none.
    [[nodiscard]] static boost::shared_ptr<CatalogStructureNodeI> nodeFrom(const QVariant &value);

private:
    void insertNext(int count, const QModelIndex &parent);

    CatalogStructureModelPrivate *const d;
};
