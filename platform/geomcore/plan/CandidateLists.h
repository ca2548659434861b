#pragma once

#include "PlanTables.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <span>
#include <vector>

namespace Plan {

/// Finds the open rows of a target that share rare values or tokens with a line. Work a line is
/// bounded: lists are walked from the rarest on, and what stands in thousands of rows is not. It
/// ends as soon as one row has so much in common with the line that none which is not yet seen can
/// come near it.
class VELKGEOMCORE_EXPORT CandidateLists
{
public:
    CandidateLists(const PlanTables &tables, const PlanTarget &target);

    struct Found
    {
        std::vector<int> rows;   ///< Indexes of open rows, ascending, at most MaxRows.
        bool isFarAhead = false; ///< One of them, of all that there are.
    };
    [[nodiscard]] Found find(size_t line) const;
    static constexpr int MaxRows = 32;
    /// Among so few all are candidates.
    static constexpr int FewRows = 64;
    static constexpr int MaxWalked = 1024;

private:
    /// The rows with a value or a token, and the logarithm of how rare that is.
    struct List
    {
        std::span<const int> rows;
        double weight = 0;
        double lead = 0; ///< The same, but 0 for tokens of a value that some row has as a whole.
        bool isKey = false;
    };
    /// From the rarest on.
    void findLists(size_t line, std::vector<List> &lists) const;
    template<class Take>
    void forEachList(size_t row, Take take) const;

    const PlanTables &m_tables;
    const PlanTarget &m_target;
    /// By place: where its values begin in m_ends, and behind them its tokens.
    std::vector<size_t> m_firstValues;
    std::vector<size_t> m_firstTokens;
    std::vector<int> m_ends; ///< Of a list in m_rows; it begins where the one before ends.
    std::vector<int> m_rows;
};

} // namespace Plan
