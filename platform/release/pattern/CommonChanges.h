#pragma once

#include "OpenPairs.h"
#include "ValueChange.h"

#include <QList>

#include <vector>

namespace VelkRelease {

/// How the lines of several pairs differ, and what all of them have in common. Changes are named by
/// what occurs again among these pairs, as ChangeFamilies does.
struct VELKRELEASE_EXPORT CommonChanges
{
    std::vector<QList<ValueChange>> ofPairs; ///< in the order of the pairs
    QList<ValueChange> common;               ///< in the order of the first pair; none of no pairs

    /// \a sourcePath: the project of all pairs.
    [[nodiscard]] static CommonChanges of(const std::vector<OpenPair> &pairs,
                                          const QString &sourcePath,
                                          const QList<AgreedReplacement> &agreed);
};

} // namespace VelkRelease
