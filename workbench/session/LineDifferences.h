#pragma once

#include <geomcore/records/LineTable.h>

#include <vector>

/// What became of one line's entry in a target.
struct LineDifference
{
    int line = 0;
    bool inBefore = false;
    bool inAfter = false;
    PrjMappingTargetLineC before; ///< if inBefore
    PrjMappingTargetLineC after;  ///< if inAfter
};

/// Entries that differ between two tables, in ascending order of lines. Pages that both share are
/// passed over, so tables of which one was made from the other cost what was changed.
[[nodiscard]] std::vector<LineDifference> lineDifferences(const LineTable &before,
                                                          const LineTable &after);
