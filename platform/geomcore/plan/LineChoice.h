#pragma once

#include "EdgeLists.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <functional>
#include <vector>

namespace Plan {

/// What a line may have become at last.
struct VELKGEOMCORE_EXPORT LineChoice
{
    static constexpr size_t MaxCandidates = 5;

    /// Sum of the weights of the assigned pairs.
    double explained = 0;
    size_t pairs = 0; ///< As many.
    /// By line.
    std::vector<double> noSuccessor;
    /// By line: its first candidate is its own in the assignment, and not just left over.
    std::vector<char> isAssigned;

    /// Whether two lines differ in nothing, nor do the rows of two edges, in a table that keeps the
    /// order of lines.
    using AreAlike = std::function<bool(size_t line, size_t otherLine, const PlanEdge &row,
                                        const PlanEdge &otherRow)>;
    /// Leaves the candidates of each line, most probable first, but the one that the assignment
    /// gives before the others.
    [[nodiscard]] static LineChoice of(EdgeLists &edges, int nodeCount, const AreAlike &areAlike);
};

} // namespace Plan
