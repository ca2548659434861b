#pragma once

#include <geomcore/records/LineCounts.h>

namespace VelkRelease {

/// How lines stand, each in one of these numbers: their sum is the number of lines. A line that
/// several targets hold counts for each.
struct ReportNumbers
{
    int confirmed = 0;     ///< a person confirmed its target line
    int gone = 0;          ///< a person confirmed that it has no successor
    int certain = 0;       ///< assigned by the program, passed its check
    int toCheck = 0;       ///< has a target line that is to be checked
    int withoutTarget = 0; ///< has none, and nobody confirmed that
    int inConflict = 0;    ///< in conflict, however it stands else

    [[nodiscard]] static ReportNumbers of(const LineCounts &counts)
    {
        ReportNumbers numbers;
        numbers.confirmed = counts.verified() - counts.expired() -
                            (counts.verifiedConflicts() - counts.expiredConflicts());
        numbers.gone = counts.expired() - counts.expiredConflicts();
        numbers.certain = counts.assigned() - counts.assignedConflicts();
        numbers.toCheck = counts.unverified() - counts.unverifiedConflicts();
        numbers.withoutTarget = counts.unmapped() - counts.unmappedConflicts();
        numbers.inConflict = counts.conflicts();
        return numbers;
    }
    void add(const ReportNumbers &other)
    {
        confirmed += other.confirmed;
        gone += other.gone;
        certain += other.certain;
        toCheck += other.toCheck;
        withoutTarget += other.withoutTarget;
        inConflict += other.inConflict;
    }

    [[nodiscard]] int lines() const
    {
        return confirmed + gone + certain + toCheck + withoutTarget + inConflict;
    }
    [[nodiscard]] int open() const { return toCheck + withoutTarget + inConflict; }

    friend bool operator==(const ReportNumbers &, const ReportNumbers &) = default;
};

} // namespace VelkRelease
