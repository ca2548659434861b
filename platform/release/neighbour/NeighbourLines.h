#pragma once

#include <QStringList>

#include <functional>
#include <vector>

namespace VelkRelease {

/// The lines of a project in the order of its table, and where they are assigned.
struct NeighbourLines
{
    struct Line
    {
        int line = -1;     ///< source line id
        int target = -1;   ///< index in the mapping; -1: none
        int row = -1;      ///< place of the target line in the target's table; -1: none
        bool gone = false; ///< confirmed to have no successor
    };
    std::vector<Line> lines;
    /// Line ids of each target's table in their order; empty for one that was not read.
    std::vector<std::vector<int>> rows;
};

/// The values of lines as they are compared, in the order of the variables of a target's table; "":
/// no value. Called on the thread of the check.
struct NeighbourValues
{
    /// Of the line at a place of NeighbourLines::lines, as the target sees it; empty if unknown.
    std::function<QStringList(int index, int target)> ofLine;
    /// Of a row of the target's table.
    std::function<QStringList(int target, int row)> ofRow;
};

} // namespace VelkRelease
