#pragma once

#include "LineCandidatesC.h"

namespace Mapper {

class BoundTarget;
struct TargetValues;

/// How the values of a source line, as a target sees them, stand to those of one of its rows:
/// every variable that both have, in the order of the target's table. Knows nothing of other
/// lines, so that nothing is Replaced.
[[nodiscard]] QList<ComparedVariableC> compareLines(const BoundTarget &target,
                                                    const TargetValues &values, int row);

/// One sentence in the user's language: which variables are equal, replaced (and in how many other
/// lines alike), near, different, missing.
[[nodiscard]] QString explanationOf(const QList<ComparedVariableC> &variables);
/// Why nothing is proposed.
[[nodiscard]] QString nothingFits();

} // namespace Mapper
