#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QList>

class ReleaseMappingC;

namespace VelkRelease {

/// A line that two projects of a release both claim is certain for neither: of the mappings at
/// these positions, entries that are Mapped to a target line which another mapping of the release
/// has too, Mapped or confirmed, become ToCheck.
VELKRELEASE_EXPORT void doubtSharedTargetLines(ReleaseMappingC &release,
                                               const QList<int> &positions);

} // namespace VelkRelease
