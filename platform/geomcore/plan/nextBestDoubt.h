#pragma once

#include "EdgeLists.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <span>

namespace Plan {

/// How much less than what they have in common says the pairs of a table weigh. Variables repeat
/// each other, and where rows are like each other a line has one that looks like its own even if
/// its own is gone. What such a row weighs is seen at the lines that were found: it is the best of
/// those that are nobody's beside their own. The doubt makes as many of these be taken for a
/// partner as partners be missed, where lines that are found and lines that are gone are equally
/// many; not less than 0, and 0 as long as no pair shows it. \a standsFor: by line, for how many;
/// \a already: what the weights lack of this so far.
[[nodiscard]] VELKGEOMCORE_EXPORT double nextBestDoubt(const EdgeLists &edges, int nodeCount,
                                                       std::span<const float> standsFor,
                                                       double already);

} // namespace Plan
