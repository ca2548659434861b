#pragma once

#include "CellChange.h"
#include "CellValues.h"
#include "KeyWeights.h"
#include "KnownChanges.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace Plan {

/// Changes of values that pairs of lines showed, each pair with its probability, and how often they
/// could have shown them.
class VELKGEOMCORE_EXPORT ChangeMemory
{
public:
    /// \a known, if there is any, stays where it is.
    explicit ChangeMemory(int variableCount = 0, const KnownChanges *known = nullptr)
        : m_variables(size_t(variableCount))
        , m_known(known)
    {
    }

    using TakePair = std::function<void(int oldValue, int newValue, double weight)>;
    /// Calls its argument with the values of each pair in which both lines have one; asked more
    /// than once, and in the same order each time.
    using Pairs = std::function<void(const TakePair &)>;
    /// All that is known of a variable. Of different ones on different threads at once.
    /// \a mostLikely: mostLikely() will be asked for.
    void learn(const CellValues &values, int variable, const Pairs &pairs, bool mostLikely);

    struct Likely
    {
        double share = 0;    ///< Of the other pairs that could have changed so, those that did.
        double supports = 0; ///< Their number, without what is known of other tables.
    };
    /// For two values that differ. What the pair itself added, with \a own weight, does not count.
    [[nodiscard]] Likely likely(const CellValues &values, int variable, int oldValue, int newValue,
                                double own) const;
    /// No change of two values in this variable is likelier.
    [[nodiscard]] double mostLikely(int variable) const
    {
        const double known = m_known ? m_known->most(variable) : 0;
        const double seen =
            size_t(variable) < m_variables.size() ? m_variables[size_t(variable)].mostLikely : 0;
        return std::max(seen, known / (known + 1));
    }

private:
    /// How many pairs have some value in a variable, this one, this token, a number.
    struct Variable
    {
        double all = 0;
        double numbers = 0;
        double mostLikely = 0;
        KeyWeights changes;
        std::vector<double> values; ///< Up to the last one seen; empty if nothing changed,
        std::vector<double> tokens; ///< or no part of a text.
    };
    [[nodiscard]] static double applicable(const Variable &seen, const CellValues::Value &oldValue,
                                           double ofValue, const CellChange &change,
                                           CellChange::Kind kind);

    [[nodiscard]] bool isKnown(int variable) const { return m_known && m_known->has(variable); }

    std::vector<Variable> m_variables;
    const KnownChanges *m_known = nullptr;
};

} // namespace Plan
