#pragma once

#include "MappingDifference.h"

#include <geomcore/records/ReleaseMappingC.h>

/// Applies a noted change; false, and nothing changed, if the release is not what the change was
/// noted for.
[[nodiscard]] bool applyChange(ReleaseMappingC &release, const MappingDifference &difference);

/// A copy that lacks one mapping.
[[nodiscard]] ReleaseMappingC withoutMapping(const ReleaseMappingC &release,
                                             const ProjectId &project);

/// What differs between two releases, project by project: those of \a after in stored order, then
/// those that are gone.
[[nodiscard]] std::vector<MappingDifference> releaseDifferences(const ReleaseMappingC &before,
                                                                const ReleaseMappingC &after);

/// Counts over a release.
[[nodiscard]] LineCounts countLines(const ReleaseMappingC &release);
