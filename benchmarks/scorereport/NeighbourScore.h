#pragma once

#include "SampleSet.h"

#include <tests/release/PlantedMistakes.h>

/// What the check of neighbours finds of mistakes that are planted in the true assignments of a
/// set, one at a time in one table, always the same ones.
struct NeighbourScore
{
    PlantedMistakes::Score shifts;
    PlantedMistakes::Score swaps;
    PlantedMistakes::Score untouched; ///< Each table as it is.
    QStringList misses;               ///< Mistakes not found and false alarms.

    /// Without the misses.
    void add(const NeighbourScore &other);
    [[nodiscard]] static NeighbourScore of(const SampleSet &set);
};
