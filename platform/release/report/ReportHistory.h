#pragma once

#include "ReleaseReport.h"

namespace VelkRelease {

/// Puts into a report what the history of a mapping file has of its release: who did which step,
/// when, with how many lines and why, the samples, and what was taken
/// over from former mappings. False with \a error if one of the files
/// cannot be read; what others have is there then. Without any there is nothing.
[[nodiscard]] VELKRELEASE_EXPORT bool addHistory(ReleaseReport &report,
                                                 const ReleaseMappingC &release,
                                                 const QString &mappingFile, QString *error);

} // namespace VelkRelease
