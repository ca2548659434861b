#pragma once

#include <geomcore/table/LineSet.h>

#include <vector>

namespace Mapper {

/// Which lines of a source table have equal lines in a target table, all at once. Immutable once
/// built; any thread.
class PairJoin
{
public:
    PairJoin(int sourceRows, int targetRows);
    ~PairJoin();

    [[nodiscard]] int sourceRows() const { return int(m_hits.size()); }
    /// The row proposed for a source row; -1 if none is equal. Of several equal rows it is the
    /// first in display order. If several source lines are equal as well, these are paired off in
    /// order: each takes the first that follows the row of the line before it.
    [[nodiscard]] int hit(int sourceRow) const { return m_hits[size_t(sourceRow)]; }
    /// Whether several target rows are equal.
    [[nodiscard]] bool isSeveral(int sourceRow) const { return m_several.contains(sourceRow); }
    /// The row equals other source rows as well, and all of them together have fewer equal ones,
    /// while some that equal each other have several: they were not merged, so some are gone.
    [[nodiscard]] bool isOutnumbered(int sourceRow) const { return has(m_outnumbered, sourceRow); }
    /// Whether it is known that the proposed row alone is equal to the source row, as a text too,
    /// and is so to no other source row. What is not known has to be looked at.
    [[nodiscard]] bool isUndisputed(int sourceRow) const { return has(m_undisputed, sourceRow); }
    /// Whether it is known that the two rows are not equal. What is not known has to be looked at.
    [[nodiscard]] bool areDifferent(int sourceRow, int targetRow) const
    {
        return m_knowsAll && hit(sourceRow) != targetRow && !isSeveral(sourceRow);
    }
    /// How many source lines have this row as an equal one: 0, 1 or 2 for more. Of several equal
    /// rows the first counts.
    [[nodiscard]] int claims(int targetRow) const { return m_claims[size_t(targetRow)]; }
    /// Whether claims() knows all: beyond a row that too many others equal as well it does not.
    [[nodiscard]] bool knowsClaims(int targetRow) const { return targetRow <= m_claimsKnownTo; }
    /// The combinations of the row's ranges have different equal rows, or are too many to be looked
    /// at.
    [[nodiscard]] bool isDivided(int sourceRow) const { return has(m_divided, sourceRow); }
    /// The conditions hold for some combination, do not hold for some. No only while no ranges are
    /// walked.
    [[nodiscard]] bool takesSome(int sourceRow) const { return has(m_taken, sourceRow); }
    [[nodiscard]] bool refusesSome(int sourceRow) const { return has(m_refused, sourceRow); }
    /// From 0 to 1: how many of the source lines that should have an equal line have one; 1 if none
    /// should.
    [[nodiscard]] double agreement() const { return m_agreement; }

private:
    friend class PairJoinBuilder;

    static bool has(const VKTab::LineSet &rows, int row)
    {
        return rows.capacity() > 0 && rows.contains(row);
    }

    std::vector<int> m_hits;
    VKTab::LineSet m_several;
    VKTab::LineSet m_outnumbered; ///< Empty if there are none.
    VKTab::LineSet m_undisputed;  ///< Empty if lines are looked at one by one.
    std::vector<quint8> m_claims;
    int m_claimsKnownTo = 0;
    bool m_knowsAll = false; ///< A line without a hit has no equal row.
    // Empty unless ranges are walked.
    VKTab::LineSet m_divided;
    VKTab::LineSet m_taken;
    VKTab::LineSet m_refused;
    double m_agreement = 0;
};

} // namespace Mapper
