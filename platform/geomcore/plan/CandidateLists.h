#pragma once

#include "PlanTables.h"

#include <unordered_map>
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

    [[nodiscard]] std::vector<const std::vector<int> *> listsOf(size_t line) const;
    [[nodiscard]] static long long key(size_t place, int number, bool token)
    {
        return ((static_cast<long long>(number) * 2 + (token ? 1 : 0)) << 12) +
               static_cast<long long>(place);
    }

    const PlanTables &m_tables;
    const PlanTarget &m_target;
    std::unordered_map<long long, std::vector<int>> m_lists;
};

} // namespace Plan
