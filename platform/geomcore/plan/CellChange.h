#pragma once

#include <cstdint>
#include <vector>

namespace Plan {

class CellValues;

/// How a new value can be made of an old one, so that other lines can be found that changed alike:
/// the value as a whole, the tokens between what both begin and end with, all differing numbers by
/// the same factor, one number by the same difference.
struct CellChange
{
    enum Kind : std::uint8_t { Whole, Middle, Factor, Offset, KindCount };
    std::uint64_t keys[KindCount] = {}; ///< 0: there is no such change.
    /// Tokens of the old value that the Middle is made of.
    int middleBegin = 0;
    int middleEnd = 0;
};

/// Both have a value, and these differ.
[[nodiscard]] CellChange changeBetween(const CellValues &values, int variable, int oldValue,
                                       int newValue);

/// A number for a few numbers.
[[nodiscard]] std::uint64_t keyOf(std::uint64_t a, std::uint64_t b, std::uint64_t c,
                                  std::uint64_t d);

} // namespace Plan
