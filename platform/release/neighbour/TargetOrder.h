#pragma once

#include "NeighbourLines.h"

#include <utility>
#include <vector>

namespace VelkRelease {

/// The lines of one target in the order of the source table with the rows they have, and how usual
/// it is there that the order is kept, a row is shared, or left free.
class TargetOrder
{
public:
    /// Another row for the line at a position.
    using Move = std::pair<int, int>;

    TargetOrder(const NeighbourLines &lines, int target);

    [[nodiscard]] int count() const { return int(m_rows.size()); }
    [[nodiscard]] int rowCount() const { return int(m_owners.size()); }
    /// Place of NeighbourLines::lines.
    [[nodiscard]] int indexAt(int position) const { return m_indexes[std::size_t(position)]; }
    [[nodiscard]] int rowAt(int position) const { return m_rows[std::size_t(position)]; }
    [[nodiscard]] bool isFree(int row) const { return m_owners[std::size_t(row)].empty(); }
    /// Positions of the lines that have a row, ascending.
    [[nodiscard]] const std::vector<int> &owners(int row) const
    {
        return m_owners[std::size_t(row)];
    }
    /// Places of NeighbourLines::lines with their rows.
    [[nodiscard]] std::vector<std::pair<int, int>> pairs() const;
    /// The first position whose line does not stand before \a index.
    [[nodiscard]] int positionOf(int index) const;

    /// By how much, as a logarithm, order, shared and free rows are more usual after the moves, of
    /// which each is of another position, in ascending order. A row of -1 takes the line's away.
    /// What the moves would mend does not count as usual.
    [[nodiscard]] double gain(const std::vector<Move> &moves) const;
    /// What the line at a position could gain at most, as usual as it is now.
    [[nodiscard]] double room(int position) const;
    void apply(const std::vector<Move> &moves);
    /// How much more usual it is that no row between those of the lines is free, by what is seen
    /// but so many places that were mended.
    [[nodiscard]] double freeWeight(int mended = 0) const;
    /// How much more usual it is that a line has a row than that it has none.
    [[nodiscard]] double withoutWeight() const { return m_withoutWeight; }

private:
    void learn(const NeighbourLines &lines);
    [[nodiscard]] double orderWeight(int mended = 0) const;
    [[nodiscard]] double sharedWeight(int mended = 0) const;

    std::vector<int> m_indexes;
    std::vector<int> m_rows;
    std::vector<std::vector<int>> m_owners; ///< by row
    int m_kept = 0;                         ///< lines behind the row of the line before, and others
    int m_broken = 0;
    int m_owned = 0; ///< rows with lines, and those of them with several
    int m_shared = 0;
    int m_gaps = 0; ///< places between the rows of lines where rows are free
    double m_withoutWeight = 0;
};

} // namespace VelkRelease
