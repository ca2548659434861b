#include "CatalogStructureModel.h"

#include "catalogNodeToolTip.h"
#include "CatalogStructureModelPrivate.h"

#include <mapping/data/CatalogNodeType.h>
#include <mapping/data/FilledNodeI.h>
#include <mapping/data/StateTreeI.h>

#include <QScopedValueRollback>

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

void invalidateWithAllBelow(const Node &node)
{
    const QList<Node> children = node->getChildren();
    for (const Node &child : children)
        invalidateWithAllBelow(child);
    node->invalidateState();
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
    return createIndex(row, column, item->child(row));
}

QModelIndex CatalogStructureModel::parent(const QModelIndex &index) const
{
    CatalogStructureItem *parentItem = d->itemOf(index)->parent;
    if (!parentItem || !parentItem->parent)
        return QModelIndex();
    return createIndex(parentItem->row, 0, parentItem);
}

int CatalogStructureModel::rowCount(const QModelIndex &parent) const
{
    return int(d->loadedItemOf(parent)->children.size());
}

int CatalogStructureModel::columnCount(const QModelIndex &) const
{
    return 1;
}

bool CatalogStructureModel::canFetchMore(const QModelIndex &parent) const
{
    const CatalogStructureItem *const item = d->itemOf(parent);
    return !d->isInserting && item->childrenLoaded && item->nextPortion() > 0;
}

void CatalogStructureModel::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent))
        insertNext(d->itemOf(parent)->nextPortion(), parent);
}

void CatalogStructureModel::fetchRow(int row, const QModelIndex &parent)
{
    const CatalogStructureItem *const item = d->loadedItemOf(parent);
    if (row >= item->children.size() && row < item->childNodes.size() && canFetchMore(parent))
        insertNext(row + 1 - int(item->children.size()), parent);
}

void CatalogStructureModel::insertNext(int count, const QModelIndex &parent)
{
    CatalogStructureItem *const item = d->itemOf(parent);
    const int first = int(item->children.size());
    const QScopedValueRollback inserting(d->isInserting, true); // whoever hears of it may ask
    beginInsertRows(parent, first, first + count - 1);
    item->addRows(count);
    endInsertRows();
}

bool CatalogStructureModel::hasChildren(const QModelIndex &parent) const
{
    const CatalogStructureItem *const item = d->itemOf(parent);
    if (item->node && isProject(*item->node)) // a view asks of each row that it has
        return false;
    if (!item->childrenLoaded && dynamic_cast<const FilledNodeI *>(item->node.get()))
        return true;
    return rowCount(parent) > 0;
}

QVariant CatalogStructureModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Node &node = d->itemOf(index)->node;
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

void CatalogStructureModel::invalidateNodes(CatalogStructureItem *item)
{
    if (!item)
        item = d->rootItem.get();
    if (auto *const tree = dynamic_cast<StateTreeI *>(item->node.get())) {
        tree->invalidateTree();
        return;
    }
    item->loadChildren();
    for (int row = 0; row < item->children.size(); ++row)
        invalidateNodes(item->child(row));
    for (qsizetype i = item->children.size(); i < item->childNodes.size(); ++i)
        invalidateWithAllBelow(item->childNodes.at(i));
    if (item->node)
        item->node->invalidateState();
}

const CatalogStructureItem &CatalogStructureModel::rootItem() const
{
    return *d->rootItem;
}

const CatalogStructureNodeI &CatalogStructureModel::nodeAt(const QModelIndex &index) const
{
    return *d->itemOf(index)->node;
}

const CatalogStructureNodeI &CatalogStructureModel::childAt(int row,
                                                            const QModelIndex &parent) const
{
    return *d->itemOf(parent)->childNodes.at(row);
}

boost::shared_ptr<CatalogStructureNodeI> CatalogStructureModel::nodeFrom(const QVariant &value)
{
    if (value.userType() == nodeTypeId())
        return *static_cast<const Node *>(value.constData());
    return value.isValid() ? value.value<Node>() : Node();
}
