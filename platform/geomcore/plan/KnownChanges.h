#pragma once

#include "KeyWeights.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Plan {

/// Changes of values that other tables showed, by variable. Each counts like some pairs
/// of this table, so that what the table itself shows soon outweighs them.
class KnownChanges
{
public:
    /// \a key: that of a kind of CellChange.
    void add(int variable, std::uint64_t key, double pairs)
    {
        if (size_t(variable) >= m_variables.size())
            m_variables.resize(size_t(variable) + 1);
        Variable &known = m_variables[size_t(variable)];
        known.pairs.add(key, pairs);
        known.most = std::max(known.most, known.pairs.of(key));
    }
    [[nodiscard]] double pairs(int variable, std::uint64_t key) const
    {
        return has(variable) ? m_variables[size_t(variable)].pairs.of(key) : 0;
    }
    /// Of no change there are more.
    [[nodiscard]] double most(int variable) const
    {
        return has(variable) ? m_variables[size_t(variable)].most : 0;
    }
    [[nodiscard]] bool has(int variable) const
    {
        return size_t(variable) < m_variables.size() &&
               !m_variables[size_t(variable)].pairs.isEmpty();
    }

private:
    struct Variable
    {
        KeyWeights pairs;
        double most = 0;
    };
    std::vector<Variable> m_variables;
};

} // namespace Plan
