#pragma once

#include "KeyWeights.h"
#include "PlanTables.h"

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace Plan {

/// Finds the open rows of a target that share rare values or tokens with a line. Work a line is
/// bounded: lists are walked from the rarest on, and what stands in thousands of rows is not.
class CandidateLists
{
public:
    CandidateLists(const PlanTables &tables, const PlanTarget &target);

    /// Indexes of open rows, ascending, at most MaxRows.
    [[nodiscard]] std::vector<int> find(size_t line) const;
    static constexpr int MaxRows = 32;
    /// Among so few all are candidates.
    static constexpr int FewRows = 64;

private:
    static constexpr int MaxWalked = 1024;

    using List = std::span<const int>;
    [[nodiscard]] std::vector<List> listsOf(size_t line) const;
    /// Never 0.
    [[nodiscard]] static std::uint64_t key(size_t place, int number, bool token)
    {
        return ((std::uint64_t(number) * 2 + (token ? 1 : 0) + 1) << 12) + std::uint64_t(place);
    }
    template<class Take>
    void forEachKey(size_t row, Take take) const;

    const PlanTables &m_tables;
    const PlanTarget &m_target;
    KeyWeights m_ends;       ///< By key: end of its rows.
    KeyWeights m_counts;     ///< By key: how many.
    std::vector<int> m_rows; ///< Of all lists.
};

} // namespace Plan
