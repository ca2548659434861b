#pragma once

#include "DifferencePatterns.h"

#include <optional>
#include <vector>

namespace VelkRelease {

/// Upper bound of the share of wrong lines in a set of which \a judged lines were drawn by chance
/// and \a wrong were wrong: the exact one of the binomial distribution after Clopper and Pearson,
/// at the given confidence. 59 right of 59 give 0.0495 at 0.95. Lines are drawn without being put
/// back, which makes the bound a little too large and never too small. 1 without a judged line.
[[nodiscard]] VELKRELEASE_EXPORT double wrongShareBound(int judged, int wrong,
                                                        double confidence = 0.95);
/// So many right lines in a row that the bound is below \a share.
[[nodiscard]] VELKRELEASE_EXPORT int linesForBound(double share, double confidence = 0.95);

/// Acceptance of a set of lines by a sample: lines are drawn by chance and judged one after the
/// other, and the first wrong one ends it. A value; knows nothing of mappings.
class VELKRELEASE_EXPORT SampleAcceptance
{
public:
    using Place = DifferencePatterns::Place;
    enum class State {
        Running,
        Accepted, ///< all drawn lines are right
        Refused,  ///< one was wrong
    };

    /// Draws \a count of the lines, all if there are fewer; the same for the same \a seed. They are
    /// judged in the order of the release, so that whoever judges goes through each project once.
    SampleAcceptance(const std::vector<Place> &lines, int count, quint64 seed);

    [[nodiscard]] State state() const;
    /// The line to be judged; not valid when that is over.
    [[nodiscard]] Place current() const;
    void judge(bool right);
    /// The line cannot be judged any more, as somebody decided on it otherwise: it is drawn anew
    /// from those that were not drawn, or the sample becomes smaller.
    void replace();

    [[nodiscard]] const std::vector<Place> &lines() const { return m_lines; }
    /// In the order of judging.
    [[nodiscard]] const std::vector<Place> &drawn() const { return m_drawn; }
    [[nodiscard]] int judged() const { return int(m_judged); }
    [[nodiscard]] int right() const { return int(m_judged) - (m_refused ? 1 : 0); }
    /// Of an accepted set: share of wrong lines at most, with certainty of 95 %; 0 if all lines of
    /// the set were judged. Nothing is stated of a set that is refused or not done.
    [[nodiscard]] std::optional<double> bound() const;

private:
    std::vector<Place> m_lines;
    std::vector<Place> m_drawn;
    std::vector<Place> m_rest; ///< not drawn, in the order in which they would be
    size_t m_judged = 0;
    bool m_refused = false;
};

} // namespace VelkRelease
