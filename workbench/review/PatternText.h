#pragma once

#include <release/pattern/DifferencePatterns.h>

#include <QString>

/// Difference patterns in words, in the language of the moment.
namespace PatternText {

/// "Werkstoff: St37-2 → S235JR; L: × 0.5", "FK: 5.6 gibt es nicht mehr".
[[nodiscard]] QString of(const VelkRelease::DifferencePatterns &patterns, int pattern);
[[nodiscard]] QString of(const QList<VelkRelease::ValueChange> &changes);
[[nodiscard]] QString of(const AgreedReplacement &replacement);
/// What changes without a notation of their own are called.
[[nodiscard]] VelkRelease::ValueChange::Words words();
/// Lines whose values cannot be set beside each other.
[[nodiscard]] QString incomparable();
/// What lines without a successor have in common.
[[nodiscard]] VelkRelease::GoneGroup::Words goneWords();

} // namespace PatternText
