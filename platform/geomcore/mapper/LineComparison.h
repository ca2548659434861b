#pragma once

#include "LineCandidatesC.h"

#include <functional>

namespace Plan {
struct CellEvidence;
}

namespace Mapper {

class BoundTarget;
struct TargetValues;

/// What is known of a change: place in BoundTarget::variables().
using CellJudge = std::function<Plan::CellEvidence(size_t place)>;

/// How the values of a source line, as a target sees them, stand to those of one of its rows:
/// every variable that both have, in the order of the target's table. \a judge is asked about
/// values that differ; without it numbers within a quarter and texts with words in common are near.
[[nodiscard]] QList<ComparedVariableC> compareLines(const BoundTarget &target,
                                                    const TargetValues &values, int row,
                                                    const CellJudge &judge);

/// One sentence in the user's language: which variables are equal, replaced (and in how many other
/// lines alike), near, different, missing.
[[nodiscard]] QString explanationOf(const QList<ComparedVariableC> &variables);
/// Why nothing is proposed.
[[nodiscard]] QString nothingFits();

} // namespace Mapper
