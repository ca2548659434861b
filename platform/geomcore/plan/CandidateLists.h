#pragma once

#include "PlanTables.h"
#include "RowVotes.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <span>
#include <utility>
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
    /// Tells the processor that the line, if there is one, will be asked for.
    void fetch(size_t line) const;
    static constexpr int MaxRows = 32;
    /// Among so few all are candidates.
    static constexpr int FewRows = 64;
    static constexpr int MaxWalked = 1024;

private:
    /// The lists of one variable: of its values, behind them of its tokens.
    struct Place
    {
        size_t values = 0;     ///< Number of them.
        std::vector<int> ends; ///< Of a list in rows; it begins where the one before ends.
        std::vector<int> rows;
        std::vector<std::pair<size_t, int>>
            frequent; ///< Lists too long to be walked, and how long.

        [[nodiscard]] std::span<const int> of(size_t list) const;
        [[nodiscard]] size_t sizeOf(size_t list) const;
    };
    /// The rows with a value or a token, and the logarithm of how rare that is.
    struct List
    {
        std::span<const int> rows; ///< None if there are too many.
        size_t size = 0;
        double weight = 0;
        double lead = 0; ///< The same, but 0 for tokens of a value that some row has as a whole.
        bool isKey = false;
        size_t place = 0;  ///< Among those of the line.
        int variable = -1; ///< Place of the variable of whose value it is the list;
        int value = 0;     ///< none if it is that of a token.
    };
    [[nodiscard]] double weightOf(size_t size) const;
    void fill(size_t place);
    /// From the rarest on.
    void findLists(size_t line, std::vector<List> &lists) const;
    /// \a onlyThere: for rows that have votes already; others cannot come among those that are
    /// taken.
    void vote(const List &list, bool onlyThere, RowVotes &votes, RowVotes::Votes &best) const;
    template<class Take>
    void forEachList(size_t place, Take take) const;

    const PlanTables &m_tables;
    const PlanTarget &m_target;
    std::vector<Place> m_places;   ///< By place in the target's variables.
    std::vector<double> m_weights; ///< Of lists that are walked, by size from 1 on.
};

} // namespace Plan
