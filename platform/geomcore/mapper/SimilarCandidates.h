#pragma once

#include "Memo.h"

#include <vector>

namespace Mapper {

class ComparableCell;
class NearCells;
class TargetTable;

/// Lines of a table among which a similar one is sought. Indexes over their cells are built at the
/// first need. Any thread.
class SimilarCandidates
{
public:
    /// \a rows ascending. The table outlives this.
    SimilarCandidates(const TargetTable &table, std::vector<int> rows);
    ~SimilarCandidates();

    /// Those that share something with the values in the variables that choose best among them;
    /// ascending. \a cells are the values of \a variables.
    [[nodiscard]] std::vector<int> find(const std::vector<int> &variables,
                                        const std::vector<ComparableCell> &cells) const;

private:
    [[nodiscard]] std::shared_ptr<const NearCells> cellsOf(int variable) const;

    const TargetTable &m_table;
    const std::vector<int> m_rows;
    mutable Memo<int, NearCells> m_cells;
    mutable std::once_flag m_prepared;
};

} // namespace Mapper
