#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QtGlobal>

#include <vector>

namespace VelkRelease {

class LineCells;

/// Replacements of values that several projects of a release show alike, each in lines that are the
/// same in all other variables. Of what a project shows only some lines count, so that a large one
/// does not speak for all; lines in which the old value stayed speak against.
class VELKRELEASE_EXPORT SharedChanges
{
public:
    /// A project's lines and those of the only table that can take them over; null without one.
    struct Tables
    {
        const LineCells *source = nullptr;
        const LineCells *target = nullptr;
    };
    struct Change
    {
        int variable = 0; ///< Its number in both.
        int project = 0;  ///< The first that shows it, and lines of it that do.
        int sourceRow = 0;
        int targetRow = 0;
        int supports = 0; ///< Lines that changed so,
        int cases = 0;    ///< of those that had the old value.
    };
    /// In no certain order. Uses all cores; the result does not depend on their number.
    [[nodiscard]] static std::vector<Change> of(const std::vector<Tables> &projects);

    /// Lines of one project that count for one value.
    static constexpr int MostOfProject = 4;
    /// Projects that have to show a change.
    static constexpr int LeastProjects = 2;
    /// Tables of more lines are not looked at: a project counts like few, however many it has.
    static constexpr int MostLines = 20'000;
};

} // namespace VelkRelease
