#pragma once

#include <array>
#include <vector>

namespace Plan {

/// What the place of a row says: partners of neighbours are neighbours more often than not. The
/// nearest lines above and below whose partners are known suggest two places; how near to these
/// the partners of known lines stand is learned from them. In a table that was sorted anew they do
/// not, and the place says nothing.
class PlaceEvidence
{
public:
    /// \a partners: by source row the row of its partner, or -1.
    PlaceEvidence(std::vector<int> partners, int targetRows);

    /// Learns from the known pairs, each seen as if it were not known.
    void learn();
    /// Most known pairs stand near the places that their neighbours suggest, or between them.
    [[nodiscard]] bool keepsOrder() const { return m_shares[Anywhere] < 0.5; }
    /// The logarithm of how much more probable the row is as the partner of the source row than
    /// any other.
    [[nodiscard]] double weight(int sourceRow, int targetRow) const;
    /// The places that the neighbours suggest; they may lie beyond the table.
    struct Places
    {
        int fromAbove = 0;
        int fromBelow = 0;
    };
    [[nodiscard]] Places places(int sourceRow) const;

private:
    enum Kind { Above, Below, Between, Anywhere, KindCount };
    using Kinds = std::array<double, KindCount>;
    [[nodiscard]] Kinds densities(int sourceRow, int targetRow) const;
    [[nodiscard]] double near(int distance) const;

    std::vector<int> m_partners;
    std::vector<int> m_above; ///< By source row: the nearest one with a partner, or -1.
    std::vector<int> m_below; ///< Likewise, or their number.
    int m_targetRows;
    Kinds m_shares{0.25, 0.25, 0.25, 0.25};
    double m_decay = 0.5;       ///< From one row to the next.
    std::vector<double> m_near; ///< near() of the least distances, once learned.
};

} // namespace Plan
