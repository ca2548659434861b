#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <string_view>

namespace Mapper {

// Texts of range cells, UTF-8, each with the decimal character of its column.

/// Whether a range offers a value, or all values of another range. A text that is no range offers
/// and contains nothing.
[[nodiscard]] VELKGEOMCORE_EXPORT bool rangeContains(std::string_view range, char rangeDecimal,
                                                     std::string_view value, char valueDecimal);
/// Whether two ranges offer the same values. Texts that are no ranges are compared as texts.
[[nodiscard]] VELKGEOMCORE_EXPORT bool sameRange(std::string_view a, char aDecimal,
                                                 std::string_view b, char bDecimal);
/// Whether every text that a value or a range offers stands in the range as it is written. False
/// for ranges of very many values.
[[nodiscard]] VELKGEOMCORE_EXPORT bool rangeHasTexts(std::string_view range, char rangeDecimal,
                                                     std::string_view value, char valueDecimal);
/// From 0 to 1: a single value inside the range has 1, two ranges as many as they have in common
/// (Dice).
[[nodiscard]] VELKGEOMCORE_EXPORT double rangeSimilarity(std::string_view range, char rangeDecimal,
                                                         std::string_view value, char valueDecimal);

} // namespace Mapper
