#pragma once

#include "MergeTypes.h"

#include <release/VelkReleaseGlobal.h>

namespace VelkRelease {

/// Merges what two sides made of one release. Changes of one side are taken; of both, if they mean
/// the same; else they clash. Lines are compared by all their entries: a line that one side gave to
/// one target and the other side to another one clashes. With an unchanged side the result is the
/// other side, record for record; exchanging the sides mirrors the clashes, and the releases differ
/// in what clashes alone.
[[nodiscard]] VELKRELEASE_EXPORT MergeResult mergeReleases(const ReleaseMappingC &base,
                                                           const ReleaseMappingC &ours,
                                                           const ReleaseMappingC &theirs,
                                                           const MergeOptions &options = {});

} // namespace VelkRelease
