#pragma once

namespace Mapper {

/// Of the source lines whose partner is known this many must have equal values, or single equal
/// lines of the table are taken for chance.
inline constexpr double EnoughAgreement = 0.5;

/// A first column without empty cells identifies the lines if this many of its values differ.
inline constexpr double KeyDistinctness = 0.9;

} // namespace Mapper
