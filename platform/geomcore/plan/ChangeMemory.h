#pragma once

#include "CellChange.h"
#include "CellValues.h"
#include "KeyWeights.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <vector>

namespace Plan {

/// Changes of values that pairs of lines showed, each pair with its probability, and how often they
/// could have shown them.
class VELKGEOMCORE_EXPORT ChangeMemory
{
public:
    /// A pair has these values in a variable; both have one.
    void add(const CellValues &values, int variable, int oldValue, int newValue, double weight);
    /// When all pairs are added: finds the most likely changes.
    void finish(const std::vector<CellValues> &values);
    /// Likewise if nobody asks for the most likely ones.
    void finish() { m_changed = {}; }

    struct Likely
    {
        double share = 0;    ///< Of the other pairs that could have changed so, those that did.
        double supports = 0; ///< Their number.
    };
    /// For two values that differ. What the pair itself added, with \a own weight, does not count.
    [[nodiscard]] Likely likely(const CellValues &values, int variable, int oldValue, int newValue,
                                double own) const;
    /// No change of two values in this variable is likelier.
    [[nodiscard]] double mostLikely(int variable) const
    {
        return size_t(variable) < m_variables.size() ? m_variables[size_t(variable)].mostLikely : 0;
    }

private:
    /// How many pairs have some value in a variable, this one, this token, a number.
    struct Variable
    {
        double all = 0;
        double numbers = 0;
        double mostLikely = 0;
        std::vector<double> values;
        std::vector<double> tokens;
    };
    [[nodiscard]] static double applicable(const Variable &seen, const CellValues::Value &oldValue,
                                           double ofValue, const CellChange &change,
                                           CellChange::Kind kind);

    struct Pair
    {
        int variable;
        int oldValue;
        int newValue;
    };

    KeyWeights m_changes;
    std::vector<Pair> m_changed; ///< Until finish().
    std::vector<Variable> m_variables;
};

} // namespace Plan
