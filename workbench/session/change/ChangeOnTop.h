#pragma once

#include "MappingDifference.h"

#include <geomcore/records/PrjMappingC.h>

#include <QSet>

#include <optional>

/// What comes of a noted change, or of its reverse, on a mapping that has gone on since. All that
/// the change touches must be as the change found it; the rest may be anything. A conflict mark
/// that came later is no hindrance and stays.
struct ChangeOnTop
{
    /// \a now is not valid if the release does not know the project.
    [[nodiscard]] static ChangeOnTop apply(const PrjMappingC &now, const MappingDifference &change);

    [[nodiscard]] bool fits() const { return !targetsBlock && blockedLines.isEmpty(); }

    PrjMappingC result;        ///< if it fits; not valid: the project goes
    bool targetsBlock = false; ///< the project, or its targets, are not what the change was for
    QSet<int> blockedLines;    ///< source lines that are not
};
