#pragma once

#include "KnownLines.h"

#include <release/VelkReleaseGlobal.h>

#include <QtGlobal>

#include <vector>

namespace VelkRelease {

/// Replacements of whole values that several projects of a release show alike, each in lines that
/// are the same in all other variables. Of what a project shows only some lines count, so that a
/// large one does not speak for all; lines in which the old value stayed speak against.
class VELKRELEASE_EXPORT SharedChanges
{
public:
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
    [[nodiscard]] static std::vector<Change> of(const std::vector<KnownLines> &projects);
};

} // namespace VelkRelease
