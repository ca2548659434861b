#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QString>

#include <vector>

namespace VelkRelease {

class LineCells;

/// Which old project each new table comes from, so that others do not claim its lines: standard
/// sizes and lengths stand in many tables of a release, and a line that is gone from one of them
/// did not move to the next one which always had it as well.
class VELKRELEASE_EXPORT TargetOwners
{
public:
    struct Table
    {
        QString name;  ///< Of the project, folded.
        QString place; ///< Its path below the catalog.
        const LineCells *cells = nullptr;
    };
    /// \a found: by source project the numbers of the tables that can take over its lines, best
    /// first. The owner of a table is each project that it is the best one for. \a sources and
    /// \a targets stay where they are.
    TargetOwners(const std::vector<Table> &sources, const std::vector<Table> &targets,
                 const std::vector<std::vector<int>> &found);

    /// Those of found that have a line of the project that no owner of theirs has had before, and
    /// those whose name is at least as near to the project's as to the owner's. The best one stays
    /// in any case, unless it has another name and another of these holds most lines, whatever the
    /// variables are called. One that only has the project's name does not stay if it stands where
    /// its owner stood, and the project elsewhere. Any thread.
    [[nodiscard]] std::vector<int> withoutOthers(int source) const;

private:
    [[nodiscard]] bool isNamesake(int source, int target) const;
    [[nodiscard]] bool hasOwnLine(int source, int target) const;
    [[nodiscard]] bool holdsMost(int source, int target) const;

    const std::vector<Table> &m_sources;
    const std::vector<Table> &m_targets;
    const std::vector<std::vector<int>> &m_found;
    std::vector<std::vector<int>> m_owners; ///< By table.
};

} // namespace VelkRelease
