#pragma once

#include "MergeTypes.h"

#include <release/VelkReleaseGlobal.h>

namespace VelkRelease {

/// Gives a line exactly these entries, none of them in conflict; in other targets it is forgotten.
/// A target that the mapping does not have comes before the one without path. With no entries at
/// all the line is without target and to be decided. The mapping's state is updated.
VELKRELEASE_EXPORT void setStanding(PrjMappingC &mapping, int line, const LineStanding &standing);
/// The same for many lines, each of them once.
VELKRELEASE_EXPORT void setStandings(PrjMappingC &mapping,
                                     const QList<QPair<int, LineStanding>> &standings);

/// The entries of a line, without the mark of a conflict.
[[nodiscard]] VELKRELEASE_EXPORT LineStanding standingOf(const PrjMappingC &mapping, int line);

} // namespace VelkRelease
