#pragma once

#include "LineTexts.h"
#include "TargetTable.h"

#include <memory>
#include <vector>

namespace Mapper {

class ComparableCell;
class SimilarCandidates;

/// Finds the line of a table that is most similar to given values on a set of variables. One
/// thread.
class SimilaritySearch
{
public:
    struct Result
    {
        int row = -1; ///< The most similar one, the first in display order of several.
        double best = 0;
        double second = 0; ///< 0 if there is no other.
    };

    SimilaritySearch(const TargetTable &table, const std::vector<int> &variables,
                     std::shared_ptr<const SimilarCandidates> candidates);

    /// From 0 to 1: mean over the variables in which either side has a value; one without a value
    /// counts 0.
    [[nodiscard]] double similarity(const LineTexts &line, int row) const;
    /// Among the candidates; \a alsoRow is looked at in any case unless it is -1. \a shownOnly
    /// leaves out lines that the project hides. Figures too low to play a part are not exact.
    [[nodiscard]] Result find(const LineTexts &line, int alsoRow, bool shownOnly) const;
    /// The best among these rows.
    [[nodiscard]] Result best(const LineTexts &line, const std::vector<int> &rows) const;

private:
    using Cells = std::vector<ComparableCell>;

    /// Exact from \a least on, else anything below it.
    [[nodiscard]] double similarity(const LineTexts &line, const Cells &cells, int row,
                                    double least) const;
    [[nodiscard]] Result best(const LineTexts &line, const std::vector<int> &rows,
                              double least) const;

    const TargetTable &m_table;
    std::vector<int> m_variables;
    std::shared_ptr<const SimilarCandidates> m_candidates;
    mutable TargetTable::Row m_row;     ///< Room for the row that is compared.
    mutable std::vector<size_t> m_slow; ///< Room for the places that cost much.
};

} // namespace Mapper
