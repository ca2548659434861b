#include "IndexTreeFilterProxyModelC.h"

IndexTreeFilterProxyModelC::IndexTreeFilterProxyModelC(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setSortCaseSensitivity(Qt::CaseInsensitive);
}

IndexTreeFilterProxyModelC::~IndexTreeFilterProxyModelC() = default;

void IndexTreeFilterProxyModelC::setFastChildDetection(bool enabled)
{
    m_fastChildDetection = enabled;
    invalidateFilter();
}

void IndexTreeFilterProxyModelC::setEmptyChildDetection(bool enabled)
{
    m_emptyChildDetection = enabled;
    invalidateFilter();
}

bool IndexTreeFilterProxyModelC::hasChildren(const QModelIndex &parent) const
{
    if (!sourceModel() || !m_fastChildDetection || m_emptyChildDetection)
        return QSortFilterProxyModel::hasChildren(parent);
    return sourceModel()->hasChildren(mapToSource(parent));
}

bool IndexTreeFilterProxyModelC::filterAcceptsRow(int sourceRow,
                                                  const QModelIndex &sourceParent) const
{
    if (QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent))
        return true;
    const QModelIndex row = sourceModel()->index(sourceRow, 0, sourceParent);
    if (!sourceModel()->hasChildren(row))
        return false;
    return m_fastChildDetection || sourceModel()->canFetchMore(row) || acceptsAny(row);
}

bool IndexTreeFilterProxyModelC::acceptsAny(const QModelIndex &sourceParent) const
{
    const int rows = sourceModel()->rowCount(sourceParent);
    for (int row = 0; row < rows; ++row) {
        if (filterAcceptsRow(row, sourceParent))
            return true;
    }
    return false;
}

bool IndexTreeFilterProxyModelC::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const auto isLeaf = [this](const QModelIndex &index) {
        return sourceModel()->flags(index).testFlag(Qt::ItemNeverHasChildren);
    };
    const bool leftIsLeaf = isLeaf(left);
    return leftIsLeaf == isLeaf(right) ? QSortFilterProxyModel::lessThan(left, right) : !leftIsLeaf;
}
