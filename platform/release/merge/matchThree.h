#pragma once

#include <QStringList>

#include <vector>

namespace VelkRelease {

/// One thing in three lists, by its place in each; -1: that list does not have it.
struct ThreePlaces
{
    int base = -1;
    int ours = -1;
    int theirs = -1;
};

/// What names the elements of a list: first by all that tells them apart, then by less.
struct MatchKeys
{
    QStringList exact;
    QStringList loose;
};

/// Which elements of three lists belong together: those of equal exact keys, the first to the first
/// and so on, then what is left by the loose ones. Elements of the base come first, then those that
/// only the sides have.
[[nodiscard]] std::vector<ThreePlaces> matchThree(const MatchKeys &base, const MatchKeys &ours,
                                                  const MatchKeys &theirs);

} // namespace VelkRelease
