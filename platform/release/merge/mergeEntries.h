#pragma once

#include "MergeTypes.h"

#include <optional>

namespace VelkRelease {

/// What became of a line in one target on both sides, in one entry; none: they clash. \a base is
/// null if the line was not there. Of two states of one assignment the confirmed one counts, else
/// the more careful one. \a sameValues becomes true if the sides have different lines that say the
/// same; the result has theirs.
[[nodiscard]] std::optional<PrjMappingTargetLineC>
mergeEntries(const PrjMappingTargetLineC *base, const LineEntry &ours, const LineEntry &theirs,
             const MergeOptions &options, bool &sameValues);

/// Kind of a line's change, as MappingChange has it: 0 changed, 1 newly assigned, 2 assignment
/// removed, 11 nothing but the text.
[[nodiscard]] int changeType(const LineStanding &before, const LineStanding &after);

/// The entry in the first target with a path, else the first one; none for an empty standing.
[[nodiscard]] std::optional<LineEntry> mainEntry(const LineStanding &standing);

} // namespace VelkRelease
