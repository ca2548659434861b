#pragma once

#include <release/VelkReleaseGlobal.h>

#include <vector>

namespace VelkRelease {

class LineCells;

/// Which old project each new table comes from, so that others do not claim its lines: standard
/// sizes and lengths stand in many tables of a release, and a line that is gone from one of them
/// did not move to the next one which always had it as well.
class VELKRELEASE_EXPORT TargetOwners
{
public:
    /// \a found: by source project the numbers of the tables that can take over its lines, best
    /// first. The owner of a table is each project that it is the best one for. \a sources and
    /// \a targets stay where they are.
    TargetOwners(const std::vector<const LineCells *> &sources,
                 const std::vector<const LineCells *> &targets,
                 const std::vector<std::vector<int>> &found);

    /// Those of found that have a line of the project that no owner of theirs has had before; the
    /// best one stays in any case. Any thread.
    [[nodiscard]] std::vector<int> withoutOthers(int source) const;

private:
    [[nodiscard]] bool hasOwnLine(int source, int target) const;

    const std::vector<const LineCells *> &m_sources;
    const std::vector<const LineCells *> &m_targets;
    const std::vector<std::vector<int>> &m_found;
    std::vector<std::vector<int>> m_owners; ///< By table.
};

} // namespace VelkRelease
