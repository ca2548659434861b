#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <array>
#include <cstddef>

namespace Plan {

/// The ways in which a new value comes from an old one, both being there.
enum class Way { Same, Change, Near, Alike, Other };
inline constexpr int WayCount = 5;

/// What was seen in pairs of lines that belong together, in one variable or in several: numbers of
/// pairs, each counted with its probability.
struct RateCounts
{
    std::array<double, WayCount> ways{};
    double lost = 0;     ///< Pairs in which only the old line has a value,
    double hadValue = 0; ///< of those in which it has one.
    double gained = 0;   ///< Pairs in which only the new line has one,
    double hadNone = 0;  ///< of those in which the old one has none.
    double staying = 0;  ///< Tokens that stay where some of a text stay,
    double tokens = 0;   ///< of all.
    double added = 0;    ///< Tokens that only the new text has then,
    double expected = 0; ///< and how many of these any text of the column would have.

    void add(const RateCounts &other, double weight = 1);
    [[nodiscard]] double total() const;
};

/// How often each of these happens.
struct VELKGEOMCORE_EXPORT VariableRates
{
    std::array<double, WayCount> ways{};
    double lost = 0;
    double gained = 0;
    double stays = 0;
    double adds = 0; ///< Tokens that are new in a text beside those that any text would have.

    [[nodiscard]] double way(Way which) const { return ways[size_t(which)]; }

    /// What is assumed as long as nothing is known: most values stay, and nothing is impossible.
    [[nodiscard]] static VariableRates assumed();
    /// From counts, as if Strength pairs more had shown \a prior.
    [[nodiscard]] static VariableRates learned(const RateCounts &counts,
                                               const VariableRates &prior);
    /// So many pairs outweigh what is assumed before any is seen.
    static constexpr double Strength = 8;
};

} // namespace Plan
