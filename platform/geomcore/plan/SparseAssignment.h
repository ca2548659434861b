#pragma once

#include "SoftAssignment.h"

#include <geomcore/VelkGeomCoreGlobal.h>

namespace Plan {

/// The pairs whose weights have the largest sum, no line and no row twice: for each line the index
/// of its edge, or -1. Only edges above \a least count. Exact; of equal sums the one that the order
/// of lines and edges gives.
[[nodiscard]] VELKGEOMCORE_EXPORT std::vector<int> assignPairs(const EdgeLists &edges,
                                                               int nodeCount, double least);

} // namespace Plan
