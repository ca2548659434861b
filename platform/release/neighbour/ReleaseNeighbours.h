#pragma once

#include "NeighbourCheck.h"

#include <geomcore/records/ReleaseMappingC.h>

#include <atomic>
#include <functional>
#include <optional>

namespace VelkRelease {

/// What does not fit in the assignments of a release.
struct VELKRELEASE_EXPORT ReleaseNeighbours
{
    struct Place
    {
        int project = -1; ///< position of the mapping in the release
        NeighbourFinding finding;

        friend bool operator==(const Place &, const Place &) = default;
    };
    std::vector<Place> places; ///< in the order of the release and of the tables
    int checkedLines = 0;      ///< lines with a target line in the tables that were looked at
    QStringList errors;        ///< what could not be read, in the order of the release

    /// Checks all projects with the threads of WorkerPool, or only those positions that \a wanted
    /// accepts; projects of which the program is sure altogether are not read. The result does not
    /// depend on the number of threads. \a tell is called on the calling thread with the projects
    /// that are done. Nothing if \a cancelled became true.
    [[nodiscard]] static std::optional<ReleaseNeighbours>
    compute(const QString &sourceRoot, const ReleaseMappingC &release,
            const std::atomic<bool> &cancelled, const std::function<bool(int)> &wanted = {},
            const std::function<void(int)> &tell = {});
};

/// What does not fit in one project, read anew; any thread. \a checkedLines is counted up.
[[nodiscard]] VELKRELEASE_EXPORT std::vector<NeighbourFinding>
readNeighbours(const QString &sourceRoot, const PrjMappingC &mapping,
               const ReleaseMappingC &release, int &checkedLines, QStringList &errors,
               const std::atomic<bool> *cancelled = nullptr);

/// The mapping with what the finding would mend: confirmed lines stay confirmed, others are to be
/// checked. The state of the mapping is not updated. Unchanged if its lines are no longer assigned.
[[nodiscard]] VELKRELEASE_EXPORT PrjMappingC mended(const PrjMappingC &mapping,
                                                    const NeighbourFinding &finding);

} // namespace VelkRelease
