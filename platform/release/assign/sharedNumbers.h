#pragma once

#include "KnownLines.h"
#include "learnedReplacements.h"

namespace VelkRelease {

/// Factors and differences that the numbers of a variable changed by in several projects of a
/// release alike, counted as SharedChanges counts whole values: of what a project shows only some
/// lines count, and lines in which a number stayed speak against. In no certain order. Reads the
/// tables of the projects that show changes, and those that have the variable; uses all cores, and
/// the result does not depend on their number.
[[nodiscard]] QList<LearnedReplacement> sharedNumbers(const std::vector<KnownLines> &projects,
                                                      const VariableNames &names,
                                                      const ReadTable &source,
                                                      const ReadTable &target);

} // namespace VelkRelease
