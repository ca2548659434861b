#pragma once

#include <mapping/data/CatalogMappingHandlerI.h>
#include <workbench/session/common/ProjectOrder.h>

#include <memory>

/// What a document works out of a whole release before it shows anything of it. Any thread may make
/// it, for the one that will use it.
struct PreparedRelease
{
    [[nodiscard]] static PreparedRelease of(const ReleaseMappingC &release, const QString &rootName,
                                            const QString &mappingFile);

    std::shared_ptr<CatalogMappingHandlerI> handler; ///< all nodes of its tree are there
    LineCounts counts;
    ProjectOrder projects;
};
