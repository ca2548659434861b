#pragma once

#include "CatalogStructureNodeI.h"

#include "WatchedRelease.h"

/// A project of the tree of a release. Holds no mapping but looks it up, so it shows every change
/// at once.
class ReleaseMappingProjectNode : public CatalogStructureNodeI
{
public:
    /// \a position is the mapping's place in the release; of several with the same path and version
    /// the first is to be given.
    ReleaseMappingProjectNode(int position, const boost::shared_ptr<WatchedRelease> &release);
    ~ReleaseMappingProjectNode() override;

    int getNodeType() const override;
    /// The source path behind its last "/", which leaves a path with backslashes whole.
    QString getName() const override;
    QString getPath() const override;
    QFlags<PRJMAPPING::MappingState_> getMappingState() const override;
    PrjMappingC getMapping() const override;
    bool hasConflicts() const override;
    QList<boost::shared_ptr<CatalogStructureNodeI>> getChildren() const override;
    void invalidateState() override;

private:
    const int m_position;
    const boost::shared_ptr<WatchedRelease> m_release;
};
