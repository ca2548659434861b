#pragma once

#include "EdgeLists.h"

namespace Plan {

/// Fills in the probabilities, as if every set of pairs in which no line and no row stands twice
/// were as probable as the product of its pairs' odds. Lines and rows tell each other in turn how
/// free they are (belief propagation, which is exact where the pairs form no circle, and converges
/// for this model).
VELKGEOMCORE_EXPORT void spreadProbabilities(EdgeLists &edges, int nodeCount);

} // namespace Plan
