#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

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
    double factor = 0; ///< If there is such a change.
    double offset = 0;
};

/// Both have a value, and these differ.
[[nodiscard]] VELKGEOMCORE_EXPORT CellChange changeBetween(const CellValues &values, int variable,
                                                           int oldValue, int newValue);

/// The keys of changes that are known by what they do.
[[nodiscard]] std::uint64_t keyOfFactor(int variable, double factor);
[[nodiscard]] std::uint64_t keyOfOffset(int variable, double offset);
/// The number to four digits: values are rounded after they were converted. Those that are the same
/// have the same key as a factor, and as an offset.
[[nodiscard]] VELKGEOMCORE_EXPORT double roundedChange(double number);

/// A number for a few numbers.
[[nodiscard]] std::uint64_t keyOf(std::uint64_t a, std::uint64_t b, std::uint64_t c,
                                  std::uint64_t d);

} // namespace Plan
