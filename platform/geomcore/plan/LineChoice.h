#pragma once

#include "EdgeLists.h"

#include <vector>

namespace Plan {

/// What a line may have become at last.
struct LineChoice
{
    static constexpr size_t MaxCandidates = 5;

    /// Sum of the weights of the assigned pairs.
    double explained = 0;
    /// By line.
    std::vector<double> noSuccessor;

    /// Leaves the candidates of each line, most probable first, but the one that the assignment
    /// gives before the others.
    [[nodiscard]] static LineChoice of(EdgeLists &edges, int nodeCount);
};

} // namespace Plan
