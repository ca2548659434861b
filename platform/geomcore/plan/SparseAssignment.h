#pragma once

#include "EdgeLists.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <functional>
#include <vector>

namespace Plan {

/// The pairs whose weights have the largest sum, no line and no row twice: for each line the index
/// of its edge, or -1. Only edges above \a least count, of them those that \a counts if it is
/// given. Exact; of equal sums the one that the order of lines and edges gives.
[[nodiscard]] VELKGEOMCORE_EXPORT std::vector<int>
assignPairs(const EdgeLists &edges, int nodeCount, double least,
            const std::function<bool(size_t line, const PlanEdge &edge)> &counts = {});

} // namespace Plan
