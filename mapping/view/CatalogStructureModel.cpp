#include "CatalogStructureModel.h"

#include "catalogNodeToolTip.h"
#include "CatalogStructureModelPrivate.h"

#include <mapping/data/CatalogNodeType.h>
#include <mapping/data/FilledNodeI.h>
#include <mapping/data/StateTreeI.h>

namespace {

using Node = boost::shared_ptr<CatalogStructureNodeI>;

int nodeTypeId()
{
    static const int id = qRegisterMetaType<Node>("boost::shared_ptr<CatalogStructureNodeI>");
    return id;
}

QVariant nodeVariant(const Node &node)
{
    return QVariant(QMetaType(nodeTypeId()), &node);
}

bool isProject(const CatalogStructureNodeI &node)
{
    return CatalogNodeType::isProject(node.getNodeType());
}

void invalidateWithAllBelow(CatalogStructureItem &item)
{
    item.loadChildren();
    for (int row = 0; row < item.children.size(); ++row)
        invalidateWithAllBelow(*item.child(row));
    if (item.node)
        item.node->invalidateState();
}

} // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is given
CatalogStructureModel::CatalogStructureModel(boost::shared_ptr<CatalogStructureNodeI> root)
    : d(new CatalogStructureModelPrivate(this, root))
{
    d->loadIcons();
}

CatalogStructureModel::~CatalogStructureModel()
{
    delete d;
}

QModelIndex CatalogStructureModel::index(int row, int column, const QModelIndex &parent) const
{
    CatalogStructureItem *const item = d->loadedItemOf(parent);
    if (row < 0 || row >= item->children.size())
        return QModelIndex();
    return createIndex(row, column, item);
}

QModelIndex CatalogStructureModel::parent(const QModelIndex &index) const
{
    const CatalogStructureItem *const above = index.isValid() ? d->itemAbove(index) : nullptr;
    if (!above || !above->parent)
        return QModelIndex();
    return createIndex(above->row, 0, above->parent);
}

int CatalogStructureModel::rowCount(const QModelIndex &parent) const
{
    return int(d->loadedItemOf(parent)->children.size());
}

int CatalogStructureModel::columnCount(const QModelIndex &) const
{
    return 1;
}

bool CatalogStructureModel::hasChildren(const QModelIndex &parent) const
{
    const Node &node = nodeAt(parent);
    if (node && isProject(*node)) // a view asks of each row that it has
        return false;
    return dynamic_cast<const FilledNodeI *>(node.get()) || rowCount(parent) > 0;
}

QVariant CatalogStructureModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Node &node = nodeAt(index);
    switch (role) {
    case Qt::DisplayRole:
        return node->getName();
    case Qt::DecorationRole:
        return isProject(*node) ? d->projectIcon : d->directoryIcon;
    case Qt::ToolTipRole:
        return catalogNodeToolTip(*node);
    case MappingStateRole:
        return node->getMappingState().toInt();
    case StructureNodeRole:
        return nodeVariant(node);
    case ConflictRole:
        return node->hasConflicts();
    default:
        return QVariant();
    }
}

void CatalogStructureModel::invalidateNodes(const QModelIndex &top)
{
    if (auto *const tree = dynamic_cast<StateTreeI *>(nodeAt(top).get()))
        tree->invalidateTree();
    else
        invalidateWithAllBelow(*d->itemOf(top));
}

const CatalogStructureModel::Node &CatalogStructureModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() ? d->itemAbove(index)->children.at(index.row()) : d->rootItem->node;
}

const QList<CatalogStructureModel::Node> &
CatalogStructureModel::nodesBelow(const QModelIndex &parent) const
{
    return d->loadedItemOf(parent)->children;
}

int CatalogStructureModel::projectsFrom(const QModelIndex &parent) const
{
    return d->loadedItemOf(parent)->projectsFrom;
}

boost::shared_ptr<CatalogStructureNodeI> CatalogStructureModel::nodeFrom(const QVariant &value)
{
    if (value.userType() == nodeTypeId())
        return *static_cast<const Node *>(value.constData());
    return value.isValid() ? value.value<Node>() : Node();
}
