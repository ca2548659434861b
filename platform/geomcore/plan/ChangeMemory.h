#pragma once

#include "CellChange.h"
#include "KeyWeights.h"

namespace Plan {

/// Changes of values that pairs of lines showed, each pair with its probability, and how often they
/// could have shown them.
class ChangeMemory
{
public:
    /// A pair has these values in a variable; both have one.
    void add(const CellValues &values, int variable, int oldValue, int newValue, double weight);
    void clear();

    struct Likely
    {
        double share = 0;    ///< Of the other pairs that could have changed so, those that did.
        double supports = 0; ///< Their number.
    };
    /// For two values that differ. What the pair itself added, with \a own weight, does not count.
    [[nodiscard]] Likely likely(const CellValues &values, int variable, int oldValue, int newValue,
                                double own) const;

private:
    [[nodiscard]] double applicable(const CellValues &values, int variable, int oldValue,
                                    const CellChange &change, CellChange::Kind kind) const;

    KeyWeights m_weights;
};

} // namespace Plan
