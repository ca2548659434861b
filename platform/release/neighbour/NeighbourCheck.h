#pragma once

#include "NeighbourLines.h"

#include <release/VelkReleaseGlobal.h>

#include <vector>

namespace VelkRelease {

/// A place of a project where the assignments do not fit each other, with what would mend it.
struct NeighbourFinding
{
    enum Kind : quint8 {
        Shifted,    ///< consecutive lines are assigned some lines too far on, or not far enough
        Swapped,    ///< two lines have each other's target line
        Misplaced,  ///< one line is assigned beside its place
        TakenTwice, ///< a line has the target line of another one, which it is unlike
        Skipped,    ///< a line has no target, and one that fits is free between its neighbours'
    };
    struct Repair
    {
        int line = -1;
        int target = -1;
        int targetLine = -1; ///< -1: is to be decided on again

        friend bool operator==(const Repair &, const Repair &) = default;
    };

    Kind kind = Shifted;
    int firstLine = -1; ///< source line ids
    int lastLine = -1;
    int steps = 0; ///< Shifted, Misplaced: lines of the new table too far on; negative: not enough
    std::vector<Repair> repairs; ///< in the order of the table

    friend bool operator==(const NeighbourFinding &, const NeighbourFinding &) = default;
};

/// Looks at the assignments of a project as a whole: whether neighbours stay neighbours, none is
/// skipped, and none taken twice without reason. A reason is that all the lines are like it, as
/// where lines were merged. What the table itself does elsewhere is usual: of a table that was
/// sorted anew the order says nothing.
///
/// A finding is a change of some assignments that makes what is seen at least 1000 times as
/// probable, by the values (see PairLikeness) and by order, free and shared lines. Findings do not
/// overlap; they come in the order of the table. Lines that look all alike are not told apart.
[[nodiscard]] VELKRELEASE_EXPORT std::vector<NeighbourFinding>
checkNeighbours(const NeighbourLines &lines, const NeighbourValues &values);

} // namespace VelkRelease
