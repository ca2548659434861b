#include "CatalogFilterModel.h"

#include "CatalogStructureModel.h"

#include <mapping/data/CatalogStructureNodeI.h>

#include <geomcore/records/PRJMAPPING.h>

CatalogFilterModel::CatalogFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
}

CatalogFilterModel::~CatalogFilterModel() = default;

bool CatalogFilterModel::hasChildren(const QModelIndex &parent) const
{
    if (isFiltering() || !sourceModel())
        return QSortFilterProxyModel::hasChildren(parent);
    return sourceModel()->hasChildren(mapToSource(parent));
}

bool CatalogFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (!isFiltering())
        return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
    const QModelIndex source = sourceModel()->index(sourceRow, 0, sourceParent);
    if (source.data(Qt::DisplayRole).toString().endsWith(QLatin1String(".prj")))
        return passesHostFilter(source) &&
               (!filterToCheck ||
                acceptsState(source.data(CatalogStructureModel::MappingStateRole).toInt()));
    const int rows = sourceModel()->rowCount(source);
    for (int row = 0; row < rows; ++row) {
        if (filterAcceptsRow(row, source))
            return true;
    }
    return false;
}

bool CatalogFilterModel::passesHostFilter(const QModelIndex &source) const
{
    if (!hostFilter)
        return true;
    const auto node =
        CatalogStructureModel::nodeFrom(source.data(CatalogStructureModel::StructureNodeRole));
    return node && hostFilter(node->getMapping());
}

bool CatalogFilterModel::acceptsState(int state) const
{
    using namespace PRJMAPPING;
    if (filterNoTarget)
        return state & StateUnmapped;
    if (filterTarget)
        return !(state & StateUnmapped) && (state & (StateUnverified | StateIncomplete));
    return state & (StateTableError | StateUnmapped | StateUnverified | StateIncomplete);
}
