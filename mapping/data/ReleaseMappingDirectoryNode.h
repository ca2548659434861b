#pragma once

#include "CatalogStructureNodeI.h"
#include "FilledNodeI.h"
#include "MarkSum.h"
#include "ReleaseMappingChildren.h"
#include "WatchedRelease.h"

/// A directory of the tree of a release. Remembers its rolled up state until invalidateState, so
/// that painting it does not walk all its projects. Made for a project, it is never empty.
class ReleaseMappingDirectoryNode : public CatalogStructureNodeI, public FilledNodeI
{
public:
    /// \a projects are the positions of all below this directory; \a depth is the path component
    /// by which its children are told apart.
    ReleaseMappingDirectoryNode(const QList<int> &projects,
                                const boost::shared_ptr<WatchedRelease> &release,
                                const QString &name, int depth);
    ~ReleaseMappingDirectoryNode() override;

    int getNodeType() const override;
    QString getName() const override;
    QString getPath() const override;
    /// Has StateUsable set, which says here that the value has been computed.
    QFlags<PRJMAPPING::MappingState_> getMappingState() const override;
    PrjMappingC getMapping() const override;
    bool hasConflicts() const override;
    QList<boost::shared_ptr<CatalogStructureNodeI>> getChildren() const override;
    void invalidateState() override;

    /// Made on first use.
    [[nodiscard]] const ReleaseMappingChildren &children() const;

private:
    /// The sum over all projects as they are now.
    [[nodiscard]] const MarkSum &marks() const;

    const QList<int> m_projects;
    const boost::shared_ptr<WatchedRelease> m_release;
    const QString m_name;
    const int m_depth;
    mutable QFlags<PRJMAPPING::MappingState_> m_cachedState;
    mutable int m_cachedGeneration = 0; ///< of the release when m_cachedState was worked out
    mutable MarkSum m_marks;
    mutable ReleaseMappingChildren m_children;
};
