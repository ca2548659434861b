#pragma once

#include <release/neighbour/NeighbourCheck.h>

#include <random>
#include <set>
#include <vector>

/// Mistakes that are planted in right assignments, and what the check of neighbours makes of them.
/// The generator alone decides: distributions differ between libraries.
namespace PlantedMistakes {

/// Some consecutive lines of a target get the row of another one, so many rows away; at the end of
/// the lines two then share one, or the last one gets none. False if there is no room.
bool shift(VelkRelease::NeighbourLines &lines, int target, int count, int steps,
           std::mt19937 &random);
/// Two lines of one target at most so far apart.
bool swap(VelkRelease::NeighbourLines &lines, int distance, std::mt19937 &random);

struct Score
{
    int lines = 0;
    int planted = 0;
    int found = 0;       ///< planted ones whose lines are all in a finding, with the true row
    int wrong = 0;       ///< lines that are assigned wrongly,
    int mended = 0;      ///< that a finding gives the true row
    int falseAlarms = 0; ///< findings without any wrong line
    int spoilt = 0;      ///< lines of other findings that would get a wrong row

    void add(const Score &other);
};

/// What the check finds where at most one mistake is planted. Rows of equal values are one as good
/// as the other: a line that got such a row is not wrong, and mended by any of them. Nor is one
/// wrong of which no variable is compared: nothing can tell.
Score scoreOf(const VelkRelease::NeighbourLines &truth, const VelkRelease::NeighbourLines &lines,
              const VelkRelease::NeighbourValues &values);
/// Places of NeighbourLines::lines that are not assigned as in the truth, to equal rows or not.
std::set<int> changedPlaces(const VelkRelease::NeighbourLines &truth,
                            const VelkRelease::NeighbourLines &lines);

} // namespace PlantedMistakes
