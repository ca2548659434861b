#pragma once

#include <release/VelkReleaseGlobal.h>

#include "TargetOwners.h"

#include <QHash>

#include <vector>

namespace VelkRelease {

/// How many lines of each new table are not those of the old projects that became it: one that is
/// full of these is nothing that a project of another name became, even if it has such lines too.
class VELKRELEASE_EXPORT TableRoom
{
public:
    /// \a found: by source project the numbers of the tables that can take over its lines, best
    /// first. A project fills the best one; where it was split, those whose names begin as its own,
    /// one after the other. \a sources and \a targets stay where they are.
    TableRoom(const std::vector<TargetOwners::Table> &sources,
              const std::vector<TargetOwners::Table> &targets,
              const std::vector<std::vector<int>> &found);

    /// Whether a project that has \a found was not found by its name, and the best one has no room
    /// for half of its lines beside those of all others; true without any. Any thread, as all else.
    [[nodiscard]] bool isMissing(int source, const std::vector<int> &found) const;
    /// Whether a table has room for half of the project's lines beside those of the projects whose
    /// names are nearer to its name.
    [[nodiscard]] bool isThere(int source, int target) const;
    /// Whether most of the projects in the folder of this one that were found by their names are
    /// still there; true without any.
    [[nodiscard]] bool isFolderKept(int source) const;

private:
    struct Owner
    {
        int source;
        int lines;
    };

    [[nodiscard]] bool hasName(int source, int target) const;

    const std::vector<TargetOwners::Table> &m_sources;
    const std::vector<TargetOwners::Table> &m_targets;
    std::vector<std::vector<Owner>> m_owners; ///< By table.
    QHash<QString, int>
        m_stayed; ///< By folder: projects that stayed in it, without those that left.
};

} // namespace VelkRelease
