#pragma once

#include <vector>

namespace Plan {

/// A possible pair of an open line and an open row.
struct PlanEdge
{
    int target = 0;    ///< Index in the plan's targets.
    int row = 0;       ///< Index in the target's open rows.
    int node = 0;      ///< Number of the row among all of the plan.
    double weight = 0; ///< Logarithm of the odds against both being without a partner.
    double probability = 0;
};

using EdgeLists = std::vector<std::vector<PlanEdge>>; ///< By open line.

/// Fills in the probabilities, as if every set of pairs in which no line and no row stands twice
/// were as probable as the product of its pairs' odds. Lines and rows tell each other in turn how
/// free they are (belief propagation, which is exact where the pairs form no circle, and converges
/// for this model).
void spreadProbabilities(EdgeLists &edges, int nodeCount);

} // namespace Plan
