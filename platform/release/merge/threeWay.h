#pragma once

#include <optional>

namespace VelkRelease {

/// The value of the side that changed it, or of both if they agree; none if they differ.
template<class T>
[[nodiscard]] std::optional<T> threeWay(const T &base, const T &ours, const T &theirs)
{
    if (ours == theirs || base == ours)
        return theirs;
    if (base == theirs)
        return ours;
    return std::nullopt;
}

} // namespace VelkRelease
