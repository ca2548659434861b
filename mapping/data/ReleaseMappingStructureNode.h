#pragma once

#include "CatalogStructureNodeI.h"
#include "LookUpTreeI.h"
#include "ReleaseMappingChildren.h"
#include "StateTreeI.h"
#include "WatchedRelease.h"

/// Root of the tree of a release.
class ReleaseMappingStructureNode : public CatalogStructureNodeI,
                                    public StateTreeI,
                                    public LookUpTreeI
{
public:
    ReleaseMappingStructureNode(const QString &name,
                                const boost::shared_ptr<WatchedRelease> &release);
    ~ReleaseMappingStructureNode() override;

    int getNodeType() const override;
    QString getName() const override;
    QString getPath() const override;
    QFlags<PRJMAPPING::MappingState_> getMappingState() const override;
    PrjMappingC getMapping() const override;
    /// Always false: nobody sees the root.
    bool hasConflicts() const override;
    QList<boost::shared_ptr<CatalogStructureNodeI>> getChildren() const override;
    void invalidateState() override;
    void invalidateTree() override;
    QList<QList<int>> rowsTo(const QString &sourcePath) const override;

private:
    [[nodiscard]] const ReleaseMappingChildren &children() const;

    const QString m_name;
    const boost::shared_ptr<WatchedRelease> m_release;
    mutable ReleaseMappingChildren m_children;
};
