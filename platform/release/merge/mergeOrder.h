#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QString>

#include <functional>
#include <vector>

namespace VelkRelease {

/// Numbers in the orders in which three lists have them.
struct OrderInput
{
    std::vector<int> base;
    std::vector<int> ours;
    std::vector<int> theirs;
};
struct MergedOrder
{
    std::vector<int> order;
    bool clashes = false; ///< both sides changed the order differently: it is that of `theirs`
};

/// An order of all numbers of both sides for which \a stays is true. What one side moved or added
/// stands where that side has it; two additions at one place are ordered by \a name, so that the
/// result does not depend on which side is which.
[[nodiscard]] VELKRELEASE_EXPORT MergedOrder mergeOrder(const OrderInput &input,
                                                        const std::function<bool(int)> &stays,
                                                        const std::function<QString(int)> &name);

} // namespace VelkRelease
