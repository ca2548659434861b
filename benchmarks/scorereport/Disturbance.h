#pragma once

#include "SampleSet.h"

#include <functional>
#include <random>

/// A change of the new release as catalogs undergo it, with the truth brought along. The same each
/// time, on every machine.
struct Disturbance
{
    QString name;
    std::function<void(SampleSet &, std::mt19937 &)> apply;

    /// Each alone, and three at once.
    [[nodiscard]] static std::vector<Disturbance> all();
    void run(SampleSet &set) const
    {
        std::mt19937 random(20'260'630);
        apply(set, random);
    }
};
