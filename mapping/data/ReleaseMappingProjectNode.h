#pragma once

#include "CatalogStructureNodeI.h"

#include <geomcore/records/ReleaseMappingC.h>

/// A project of the tree of a release. Holds no mapping but looks it up, so it shows every change
/// at once. Of several mappings with its path and version it shows the first.
class ReleaseMappingProjectNode : public CatalogStructureNodeI
{
public:
    ReleaseMappingProjectNode(const QString &sourcePath, const QString &sourceVersion,
                              const boost::shared_ptr<ReleaseMappingC> &release);
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
    const QString m_sourcePath;
    const QString m_sourceVersion;
    const boost::shared_ptr<ReleaseMappingC> m_release;
};
