#pragma once

namespace Mapper {

// The values that follow were measured on tables of standard fasteners in two releases, with keys
// changed or removed and a fifth of the lines deleted, so that often no line is the right answer.
// Right and wrong proposals at ClearMargin 0.15: threshold 0.80 512/18, 0.85 448/6, 0.90 303/2;
// without the key column 0.85 434/5, 0.90 284/1. At 0.90 and ClearMargin 0.10 it is 309/9, at 0.05
// 343/15. The chosen pair is the first at which at most one proposal in a hundred is wrong.

/// A line is proposed for its similarity if its score is at least this.
inline constexpr double SimilarThreshold = 0.90;
/// The score of the second best line must stay at least this much below.
inline constexpr double ClearMargin = 0.15;
/// What the place is worth: a line that stands, among lines that are settled, exactly where the
/// source line stands among theirs scores this much above its similarity.
inline constexpr double OrderWeight = 0.30;

/// Two numbers that differ by this part of the larger one have nothing in common. At equal
/// precision 0.25 keeps 30 % more proposals than 0.5 or 1.
inline constexpr double NumberRange = 0.25;

/// Of the source lines whose partner is known this many must have equal values, or single equal
/// lines of the table are taken for chance.
inline constexpr double EnoughAgreement = 0.5;

/// A first column without empty cells identifies the lines if this many of its values differ.
inline constexpr double KeyDistinctness = 0.9;

} // namespace Mapper
