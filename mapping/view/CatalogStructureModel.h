#pragma once

#include <mapping/data/CatalogStructureNodeI.h>

#include <QAbstractItemModel>

#include <boost/shared_ptr.hpp>

class CatalogStructureModelPrivate;

/// The catalog's tree of nodes as an item model of one column. Children are asked of a node when a
/// view needs them, and once: the tree does not change after that. A row that is a project costs
/// nothing beside its node. GUI thread only.
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
    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;

    using Node = boost::shared_ptr<CatalogStructureNodeI>;
    /// The root's for an index that is not valid, which may be null.
    [[nodiscard]] const Node &nodeAt(const QModelIndex &index) const;
    /// Of all rows below, without an index of any.
    [[nodiscard]] const QList<Node> &nodesBelow(const QModelIndex &parent) const;

    /// The row from which on all are projects, below which there is nothing.
    [[nodiscard]] int projectsFrom(const QModelIndex &parent) const;

    /// Makes all nodes from \a top down drop what they remember of their state; one that is not
    /// valid stands for the root. A root that is a StateTreeI does it by itself and loads nothing;
    /// else the nodes are walked, which loads them, children before parents. Sends no signal: the
    /// caller repaints its views.
    void invalidateNodes(const QModelIndex &top = QModelIndex());

    /// The node in a value of StructureNodeRole, of this model or of a proxy; null if it has none.
    [[nodiscard]] static boost::shared_ptr<CatalogStructureNodeI> nodeFrom(const QVariant &value);

private:
    CatalogStructureModelPrivate *const d;
};
