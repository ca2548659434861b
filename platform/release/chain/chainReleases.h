#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

namespace VelkRelease {

/// How the lines of a chain came out; each line is in one of the first four numbers.
struct ChainCounts
{
    int confirmed = 0; ///< settled in both mappings, expired lines included
    int assigned = 0;  ///< assigned with certainty, but not confirmed in both
    int toCheck = 0;   ///< leads to a line that somebody has to look at
    int open = 0;    ///< has no line: one of the mappings has none, or does not know the middle one
    int unknown = 0; ///< of the open ones those whose middle project or line the second lacks
    int rangeTexts = 0; ///< lines whose value range texts were not taken along
};

/// The mapping over two that follow each other: what a line became by the first, and what that
/// became by the second. A line is confirmed if it is in both, and expired if it is so in the
/// first, or its confirmed successor is in the second. It is certain if both are at least that,
/// else to be checked. Conflicts are to be checked too.
///
/// Conditions, variable mappings, value range texts and what was agreed to about values hold
/// between two releases and are left out. Middle projects are found by their paths; where several
/// targets of the second mapping hold a line, the first real one counts, and the line is to be
/// checked. The projects are those of the first, in its order.
[[nodiscard]] VELKRELEASE_EXPORT ReleaseMappingC chainReleases(const ReleaseMappingC &first,
                                                               const ReleaseMappingC &second,
                                                               ChainCounts *counts = nullptr);

} // namespace VelkRelease
