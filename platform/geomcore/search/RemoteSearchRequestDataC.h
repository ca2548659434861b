#pragma once

#include "IndexTreeBaseSearchC.h"
#include <geomcore/index/IndexTreeNodeC.h>

#include <QList>

/// What a user wants to find and where: the searches and the nodes below which they look. Belongs
/// to one thread; CatalogSearchQuery::fromRequest() makes a value of it that others may have.
class VELKGEOMCORE_EXPORT RemoteSearchRequestDataC : public PRefObject
{
public:
    RemoteSearchRequestDataC();
    ~RemoteSearchRequestDataC() override;

    /// A copy that shares no search with this one.
    [[nodiscard]] PRefPtr<RemoteSearchRequestDataC> clone() const;

    /// An empty list, and the root, stand for everything.
    void setNodeList(const QList<PRefPtr<IndexTreeNodeC>> &nodes) { m_nodes = nodes; }
    [[nodiscard]] const QList<PRefPtr<IndexTreeNodeC>> &getNodeList() const { return m_nodes; }
    /// Where the nodes come from: "_siFixedCat" if they were given and the user cannot change them.
    void setNodeListType(const QString &type) { m_nodeListType = type; }
    [[nodiscard]] const QString &getNodeListType() const { return m_nodeListType; }
    [[nodiscard]] bool isNodeListFixed() const { return m_nodeListType == u"_siFixedCat"; }

    /// Null if there is none. Without \a exact case does not count.
    [[nodiscard]] PRefPtr<IndexTreeBaseSearchC> getSearchClassByName(const QString &name,
                                                                     bool exact) const;
    /// Replaces a search of the same name. Null adds nothing.
    void addSearchClass(const PRefPtr<IndexTreeBaseSearchC> &search);
    [[nodiscard]] const QList<PRefPtr<IndexTreeBaseSearchC>> &getSearchClasses() const
    {
        return m_searches;
    }

private:
    QList<PRefPtr<IndexTreeNodeC>> m_nodes;
    QString m_nodeListType;
    QList<PRefPtr<IndexTreeBaseSearchC>> m_searches;
};
