#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Plan {

/// What the place of a row says: partners of neighbours are neighbours more often than not. The
/// nearest lines above and below whose partners are known suggest two places; how near to these
/// the partners of known lines stand is learned from them. In a table that was sorted anew they do
/// not, and the place says nothing.
class VELKGEOMCORE_EXPORT PlaceEvidence
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
    /// The nearest row above \a row with a partner, or -1; the nearest one below, or their number.
    [[nodiscard]] int above(int row) const;
    [[nodiscard]] int below(int row) const;
    /// Rows with a partner, one of \a step.
    [[nodiscard]] std::vector<int> knownRows(size_t step) const;

    std::vector<int> m_partners;
    /// Nearly all rows of a large table have a partner, and few are asked for: a set of them is
    /// looked at, and beyond a word of it what is known of all words.
    struct Rows
    {
        std::uint64_t known = 0; ///< A bit for each with a partner.
        int above = -1;          ///< The nearest known row of the words before,
        int below = 0;           ///< and of those behind.
    };
    std::vector<Rows> m_words;
    int m_targetRows;
    Kinds m_shares{0.25, 0.25, 0.25, 0.25};
    double m_decay = 0.5;       ///< From one row to the next.
    std::vector<double> m_near; ///< near() of the least distances, once learned.
};

} // namespace Plan
